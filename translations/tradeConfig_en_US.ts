<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>CCaptionBar</name>
    <message>
        <source>最小化</source>
        <extracomment>Tooltip of the caption button that minimises the window</extracomment>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>关闭</source>
        <extracomment>Tooltip of the caption button that closes the window</extracomment>
        <translation>Close</translation>
    </message>
    <message>
        <source>还原</source>
        <extracomment>Tooltips of the caption button that restores or maximises the window</extracomment>
        <translation>Restore</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximize</translation>
    </message>
</context>
<context>
    <name>CMessageBox</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>全部保存</source>
        <translation>Save All</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>全是</source>
        <translation>Yes to All</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message>
        <source>全否</source>
        <translation>No to All</translation>
    </message>
    <message>
        <source>终止</source>
        <translation>Abort</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>忽略</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>放弃</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>重置</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>还原默认值</source>
        <translation>Restore Defaults</translation>
    </message>
    <message>
        <source>确定(%1)</source>
        <extracomment>Confirmation button that presses itself; %1 is the number of seconds left</extracomment>
        <translation>OK (%1)</translation>
    </message>
</context>
<context>
    <name>CTradeConfigWidget</name>
    <message>
        <source>CTradeConfigWidget</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>委托时输入</source>
        <translation>Order entry</translation>
    </message>
    <message>
        <source>买入时委托输入：</source>
        <translation>Enter buy orders by:</translation>
    </message>
    <message>
        <source>(修改后重启生效)</source>
        <translation>(after restart)</translation>
    </message>
    <message>
        <source>卖出时委托输入：</source>
        <translation>Enter sell orders by:</translation>
    </message>
    <message>
        <source>默认页面</source>
        <translation>Start page</translation>
    </message>
    <message>
        <source>登录后默认页面：</source>
        <translation>Page shown after login:</translation>
    </message>
    <message>
        <source>锁屏和解锁</source>
        <translation>Screen lock</translation>
    </message>
    <message>
        <source>界面不操作超过多久锁屏(分)：</source>
        <translation>Lock screen when idle for (min):</translation>
    </message>
    <message>
        <source>买卖方式</source>
        <translation>Order type</translation>
    </message>
    <message>
        <source>默认买入方式：</source>
        <translation>Default buy order type:</translation>
    </message>
    <message>
        <source>默认卖出方式：</source>
        <translation>Default sell order type:</translation>
    </message>
    <message>
        <source>行情代码联动</source>
        <translation>Linking</translation>
    </message>
    <message>
        <source>行情代码跟随委托代码：</source>
        <translation>Quote follows order symbol:</translation>
    </message>
    <message>
        <source>委托代码跟随行情代码：</source>
        <translation>Order follows quote symbol:</translation>
    </message>
    <message>
        <source>行情交易界面</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>行情交易界面言语：</source>
        <translation>Interface language:</translation>
    </message>
    <message>
        <source>交易界面缩放比例：</source>
        <translation>Interface scale:</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>行情交易界面字体：</source>
        <translation>Interface font:</translation>
    </message>
    <message>
        <source>买入卖出</source>
        <translation>Buy and sell</translation>
    </message>
    <message>
        <source>默认买入价格：</source>
        <translation>Default buy price:</translation>
    </message>
    <message>
        <source>默认买入数量：</source>
        <translation>Default buy quantity:</translation>
    </message>
    <message>
        <source>默认卖出价格：</source>
        <translation>Default sell price:</translation>
    </message>
    <message>
        <source>默认卖出数量：</source>
        <translation>Default sell quantity:</translation>
    </message>
    <message>
        <source>买卖后界面</source>
        <translation>After order</translation>
    </message>
    <message>
        <source>买卖后界面设置：</source>
        <translation>After an order, the form:</translation>
    </message>
    <message>
        <source>响应点击</source>
        <translation>Order book</translation>
    </message>
    <message>
        <source>响应点击买卖盘数量</source>
        <translation>Take quantities clicked in the order book</translation>
    </message>
    <message>
        <source>买卖输入框</source>
        <translation>Input boxes</translation>
    </message>
    <message>
        <source>买卖页面输入框默认状态：</source>
        <translation>Default state of input boxes:</translation>
    </message>
    <message>
        <source>提示框</source>
        <translation>Prompts</translation>
    </message>
    <message>
        <source>撤单前需要确认</source>
        <translation>Confirm before cancelling an order</translation>
    </message>
    <message>
        <source>委托前需要确认</source>
        <translation>Confirm before placing an order</translation>
    </message>
    <message>
        <source>委托成功后弹出提示对话框</source>
        <translation>Show a message after a successful order</translation>
    </message>
    <message>
        <source>分仓设置</source>
        <translation>Splitting</translation>
    </message>
    <message>
        <source>启用股票自动分仓</source>
        <translation>Split large stock orders automatically</translation>
    </message>
    <message>
        <source>基量：</source>
        <translation>Base quantity:</translation>
    </message>
    <message>
        <source>拆单策略：</source>
        <translation>Strategy:</translation>
    </message>
    <message>
        <source>单笔上限：</source>
        <translation>Maximum per order:</translation>
    </message>
    <message>
        <source>单笔下限：</source>
        <translation>Minimum per order:</translation>
    </message>
    <message>
        <source>递减数量：</source>
        <translation>Decrement:</translation>
    </message>
    <message>
        <source>科创板自动分仓</source>
        <translation>STAR splitting</translation>
    </message>
    <message>
        <source>启用科创板股票自动分仓</source>
        <translation>Split large STAR-board orders automatically</translation>
    </message>
    <message>
        <source>科创板保护价</source>
        <translation>STAR protection</translation>
    </message>
    <message>
        <source>科创板买入保护价默认值最新价上浮：</source>
        <translation>STAR buy protection, above last:</translation>
    </message>
    <message>
        <source>修改</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>科创板卖出保护价默认值最新价上浮：</source>
        <translation>STAR sell protection, above last:</translation>
    </message>
    <message>
        <source>普通交易快捷键</source>
        <translation>Cash trading</translation>
    </message>
    <message>
        <source>信用交易快捷键</source>
        <translation>Margin trading</translation>
    </message>
    <message>
        <source>交易全局快捷键</source>
        <translation>Global hotkeys</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>买入数量</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>买入金额</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>卖出数量</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>卖出金额</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>股票买入</source>
        <translation>Buy</translation>
    </message>
    <message>
        <source>股票卖出</source>
        <translation>Sell</translation>
    </message>
    <message>
        <source>资金股票</source>
        <translation>Holdings</translation>
    </message>
    <message>
        <source>限价买入</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>市价买入</source>
        <translation>Market</translation>
    </message>
    <message>
        <source>限价卖出</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>市价卖出</source>
        <translation>Market</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message>
        <source>正常字体</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>大字体</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>特大字体</source>
        <translation>X-Large</translation>
    </message>
    <message>
        <source>卖一</source>
        <translation>Ask 1</translation>
    </message>
    <message>
        <source>卖二</source>
        <translation>Ask 2</translation>
    </message>
    <message>
        <source>卖三</source>
        <translation>Ask 3</translation>
    </message>
    <message>
        <source>卖四</source>
        <translation>Ask 4</translation>
    </message>
    <message>
        <source>卖五</source>
        <translation>Ask 5</translation>
    </message>
    <message>
        <source>最新价</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>空</source>
        <translation>None</translation>
    </message>
    <message>
        <source>全仓</source>
        <translation>All</translation>
    </message>
    <message>
        <source>买一</source>
        <translation>Bid 1</translation>
    </message>
    <message>
        <source>买二</source>
        <translation>Bid 2</translation>
    </message>
    <message>
        <source>买三</source>
        <translation>Bid 3</translation>
    </message>
    <message>
        <source>买四</source>
        <translation>Bid 4</translation>
    </message>
    <message>
        <source>买五</source>
        <translation>Bid 5</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Is cleared</translation>
    </message>
    <message>
        <source>保留代码</source>
        <translation>Keeps symbol</translation>
    </message>
    <message>
        <source>保留代码价格</source>
        <translation>Keeps symbol, price</translation>
    </message>
    <message>
        <source>保留全部</source>
        <translation>Keeps everything</translation>
    </message>
    <message>
        <source>光标在数字后</source>
        <translation>Caret after digits</translation>
    </message>
    <message>
        <source>全选数字</source>
        <translation>Digits selected</translation>
    </message>
    <message>
        <source>固定数量</source>
        <translation>Fixed</translation>
    </message>
    <message>
        <source>区间随机</source>
        <translation>Random</translation>
    </message>
    <message>
        <source>数量递减</source>
        <translation>Step-down</translation>
    </message>
    <message>
        <source>限价委托</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>市价委托</source>
        <translation>Market</translation>
    </message>
    <message>
        <source>盘后定价</source>
        <translation>After-hrs</translation>
    </message>
    <message>
        <source>不能小于100股</source>
        <translation>At least 100 shares</translation>
    </message>
    <message>
        <source>上限不能小于下限或递减数量</source>
        <translation>Below min. or decrement</translation>
    </message>
    <message>
        <source>不能大于上限</source>
        <translation>Above the maximum</translation>
    </message>
    <message>
        <source>基础设置</source>
        <translation>General</translation>
    </message>
    <message>
        <source>联动设置</source>
        <translation>Linking</translation>
    </message>
    <message>
        <source>界面设置</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>默认设置</source>
        <translation>Defaults</translation>
    </message>
    <message>
        <source>提示设置</source>
        <translation>Prompts</translation>
    </message>
    <message>
        <source>普通快捷设置</source>
        <translation>Cash</translation>
    </message>
    <message>
        <source>信用快捷设置</source>
        <translation>Margin</translation>
    </message>
    <message>
        <source>全局交易设置</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>系统设置</source>
        <translation>System</translation>
    </message>
    <message>
        <source>交易设置</source>
        <translation>Trading</translation>
    </message>
    <message>
        <source>快捷键设置</source>
        <translation>Hotkeys</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>存在不合理的修改参数
请把红色标记的值修改为绿色标记后再次点击确定！</source>
        <translation>Some values are not acceptable.
Change the values marked red until they turn green, then press OK again.</translation>
    </message>
    <message>
        <source>部分修改需要重启后生效，确定现在重启吗？</source>
        <translation>Some changes take effect after a restart. Restart now?</translation>
    </message>
    <message>
        <source>正常</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>功能说明</source>
        <translation>Function</translation>
    </message>
    <message>
        <source>键位设定</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>设置说明</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>买入股票</source>
        <translation>Buy stock</translation>
    </message>
    <message>
        <source>卖出股票</source>
        <translation>Sell stock</translation>
    </message>
    <message>
        <source>撤单</source>
        <translation>Cancel order</translation>
    </message>
    <message>
        <source>查询</source>
        <translation>Query</translation>
    </message>
    <message>
        <source>持仓</source>
        <translation>Positions</translation>
    </message>
    <message>
        <source>成交</source>
        <translation>Executions</translation>
    </message>
    <message>
        <source>委托</source>
        <translation>Orders</translation>
    </message>
    <message>
        <source>全撤</source>
        <translation>Cancel all</translation>
    </message>
    <message>
        <source>撤买</source>
        <translation>Cancel buys</translation>
    </message>
    <message>
        <source>撤卖</source>
        <translation>Cancel sells</translation>
    </message>
    <message>
        <source>撤最后</source>
        <translation>Cancel last</translation>
    </message>
    <message>
        <source>批量下单-买入</source>
        <translation>Batch buy</translation>
    </message>
    <message>
        <source>批量下单-卖出</source>
        <translation>Batch sell</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>显示/隐藏交易模块</source>
        <translation>Show/hide trading</translation>
    </message>
    <message>
        <source>%1为全局快捷键！</source>
        <extracomment>%1 is a key such as F5</extracomment>
        <translation>%1 is a global key</translation>
    </message>
    <message>
        <source>与%1重复</source>
        <extracomment>%1 is the trading function that already has the key</extracomment>
        <translation>Used by %1</translation>
    </message>
    <message>
        <source>交易客户端设置</source>
        <translation>Trading client settings</translation>
    </message>
    <message>
        <source>科创板设置</source>
        <translation>STAR-board settings</translation>
    </message>
    <message>
        <source>修改科创板买入保护价默认值</source>
        <translation>Change the STAR buy protection</translation>
    </message>
    <message>
        <source>修改科创板卖出保护价默认值</source>
        <translation>Change the STAR sell protection</translation>
    </message>
</context>
<context>
    <name>Client</name>
    <message>
        <source>无法创建目录 %1</source>
        <translation>Cannot create the directory %1</translation>
    </message>
    <message>
        <source>没有可用的显示。可用 --screenshots 将设置窗口保存为图片。</source>
        <translation>There is no display. Use --screenshots to save the settings window as images.</translation>
    </message>
    <message>
        <source>已改用内置的浅色皮肤。</source>
        <translation>The built-in light skin serves instead.</translation>
    </message>
</context>
<context>
    <name>ClientOptions</name>
    <message>
        <source>桌面证券交易客户端</source>
        <translation>Desktop stock-trading client</translation>
    </message>
    <message>
        <source>目录</source>
        <translation>directory</translation>
    </message>
    <message>
        <source>以 JSON 格式输出交易参数后退出。</source>
        <translation>Print the trading parameters as JSON and quit.</translation>
    </message>
    <message>
        <source>加载指定的设置模块，而不是随程序安装的模块。</source>
        <translation>Load this settings module instead of the installed one.</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>file</translation>
    </message>
    <message>
        <source>使用指定的皮肤：皮肤名称或皮肤所在的目录。</source>
        <translation>Use this skin: its name or its directory.</translation>
    </message>
    <message>
        <source>皮肤</source>
        <translation>Skin</translation>
    </message>
    <message>
        <source>多余的参数：%1</source>
        <translation>Unexpected argument: %1</translation>
    </message>
    <message>
        <source>--screenshots 需要一个目录</source>
        <translation>--screenshots needs a directory</translation>
    </message>
    <message>
        <source>展示所有自绘控件的每种模式和状态，而不打开客户端。</source>
        <translation>Shows every skinned widget in every mode and state instead of opening the client.</translation>
    </message>
    <message>
        <source>以指定的界面缩放（100 到 300）展示控件或保存图片，与 --gallery 或 --screenshots 同用。</source>
        <translation>Shows the widgets or saves the pictures in this interface scale (100 to 300); together with --gallery or --screenshots.</translation>
    </message>
    <message>
        <source>百分比</source>
        <translation>percent</translation>
    </message>
    <message>
        <source>--scale 只能与 --gallery 或 --screenshots 同用</source>
        <translation>--scale needs --gallery or --screenshots beside it</translation>
    </message>
    <message>
        <source>--scale 需要 100 到 300 的整数</source>
        <translation>--scale needs a whole number from 100 to 300</translation>
    </message>
    <message>
        <source>列出皮肤的所有问题（文件、键、原因）后退出，有问题时状态为 1。</source>
        <translation>List all that is wrong with a skin (file, key, reason) and quit, with status 1 if there is anything.</translation>
    </message>
    <message>
        <source>--check-skin 需要一个目录</source>
        <translation>--check-skin needs a directory</translation>
    </message>
    <message>
        <source>将设置窗口的每一页和主窗口按实际大小保存为 PNG 文件后退出。</source>
        <translation>Save every page of the settings window, and the main window, in their real sizes to PNG files and quit.</translation>
    </message>
</context>
<context>
    <name>ExpectedHome</name>
    <message>
        <source>无法使用数据目录 %1：%2</source>
        <translation>Cannot use the data directory %1: %2</translation>
    </message>
</context>
<context>
    <name>FileReplace</name>
    <message>
        <source>无法写入 %1：%2</source>
        <translation>Cannot write %1: %2</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>列表</source>
        <translation>List</translation>
    </message>
    <message>
        <source>走势</source>
        <translation>Chart</translation>
    </message>
    <message>
        <source>时钟</source>
        <translation>Clock</translation>
    </message>
    <message>
        <source>菜单</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>普通</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>悬停</source>
        <translation>Hover</translation>
    </message>
    <message>
        <source>选中</source>
        <translation>Selected</translation>
    </message>
    <message>
        <source>图</source>
        <translation>Img</translation>
    </message>
    <message>
        <source>末端</source>
        <translation>End</translation>
    </message>
    <message>
        <source>沪深</source>
        <translation>SH/SZ</translation>
    </message>
    <message>
        <source>创业</source>
        <translation>GEM</translation>
    </message>
    <message>
        <source>科创</source>
        <translation>STAR</translation>
    </message>
    <message>
        <source>北证</source>
        <translation>BSE</translation>
    </message>
    <message>
        <source>基金</source>
        <translation>Funds</translation>
    </message>
    <message>
        <source>债券</source>
        <translation>Bonds</translation>
    </message>
    <message>
        <source>港股</source>
        <translation>HK</translation>
    </message>
    <message>
        <source>期权</source>
        <translation>Opts</translation>
    </message>
    <message>
        <source>滚动到开头</source>
        <translation>At the start</translation>
    </message>
    <message>
        <source>滚动到中间</source>
        <translation>In the middle</translation>
    </message>
    <message>
        <source>滚动到结尾</source>
        <translation>At the end</translation>
    </message>
    <message>
        <source>背景开</source>
        <translation>Ground on</translation>
    </message>
    <message>
        <source>背景关</source>
        <translation>Ground off</translation>
    </message>
    <message>
        <source>系统设置</source>
        <translation>System</translation>
    </message>
    <message>
        <source>交易设置</source>
        <translation>Trading</translation>
    </message>
    <message>
        <source>快捷键设置</source>
        <translation>Hotkeys</translation>
    </message>
    <message>
        <source>横向切换栏</source>
        <translation>Horizontal switch bar</translation>
    </message>
    <message>
        <source>每种模式的普通、悬停、选中和菜单项，分隔线、图片项和末端项；放不下的项目由滚动按钮翻看。</source>
        <translation>Normal, hovered, selected and menu items of each mode, separators, image items and end items; items that do not fit are reached by the scroll buttons.</translation>
    </message>
    <message>
        <source>设置窗口的切换栏</source>
        <translation>The switch bar of the settings window</translation>
    </message>
    <message>
        <source>固定宽度 219，可操作</source>
        <translation>Items 219 wide; live</translation>
    </message>
    <message>
        <source>纵向切换栏</source>
        <translation>Vertical switch bar</translation>
    </message>
    <message>
        <source>同样的项目自上而下；平面按钮和导航模式每行写一个字，选中项右侧有一条线。</source>
        <translation>The same items from top to bottom; the flat button and navigation modes write one character a line and draw a line at the right of the selected item.</translation>
    </message>
    <message>
        <source>导航列表</source>
        <translation>Navigation list</translation>
    </message>
    <message>
        <source>选中的一行透出窗口的背景，鼠标所指的一行另有底色。</source>
        <translation>The window&apos;s background shows through the selected row; the row under the mouse has a color of its own.</translation>
    </message>
    <message>
        <source>基础设置</source>
        <translation>General</translation>
    </message>
    <message>
        <source>联动设置</source>
        <translation>Linking</translation>
    </message>
    <message>
        <source>界面设置</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>选中第一行</source>
        <translation>First selected</translation>
    </message>
    <message>
        <source>选中第二行</source>
        <translation>Second selected</translation>
    </message>
    <message>
        <source>悬停在第三行</source>
        <translation>Mouse over the third</translation>
    </message>
    <message>
        <source>选中最后一行，悬停在第一行</source>
        <translation>Last selected, mouse over the first</translation>
    </message>
    <message>
        <source>空列表</source>
        <translation>Empty</translation>
    </message>
    <message>
        <source>可操作</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>徽标</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>标题</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximize</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>无</source>
        <translation>None</translation>
    </message>
    <message>
        <source>标题栏</source>
        <translation>Caption bar</translation>
    </message>
    <message>
        <source>窗口的标志决定标题栏有哪些部分。</source>
        <translation>The window&apos;s flags decide which parts a caption bar has.</translation>
    </message>
    <message>
        <source>窗口标志的每种组合</source>
        <translation>Every set of window flags</translation>
    </message>
    <message>
        <source>窗口的种类和状态</source>
        <translation>Kinds and states of the window</translation>
    </message>
    <message>
        <source>非模态窗口</source>
        <translation>Modeless window</translation>
    </message>
    <message>
        <source>模态对话框</source>
        <translation>Modal dialog</translation>
    </message>
    <message>
        <source>已最大化：还原按钮</source>
        <translation>Maximized: restore button</translation>
    </message>
    <message>
        <source>不绘制背景</source>
        <translation>No background</translation>
    </message>
    <message>
        <source>隐藏标题</source>
        <translation>Title hidden</translation>
    </message>
    <message>
        <source>附加的控件</source>
        <translation>A widget added</translation>
    </message>
    <message>
        <source>1 · 单帧</source>
        <translation>1 · one frame</translation>
    </message>
    <message>
        <source>2 · 两帧</source>
        <translation>2 · two frames</translation>
    </message>
    <message>
        <source>3 · 三帧：最小化</source>
        <translation>3 · three frames: minimize</translation>
    </message>
    <message>
        <source>3 · 三帧：最大化</source>
        <translation>3 · three frames: maximize</translation>
    </message>
    <message>
        <source>3 · 三帧：还原</source>
        <translation>3 · three frames: restore</translation>
    </message>
    <message>
        <source>4 · 四帧</source>
        <translation>4 · four frames</translation>
    </message>
    <message>
        <source>5 · 每种状态一张图片</source>
        <translation>5 · an image for each state</translation>
    </message>
    <message>
        <source>5 · 只有普通和悬停图片</source>
        <translation>5 · normal and hover images only</translation>
    </message>
    <message>
        <source>5 · 文字缩进 24</source>
        <translation>5 · text indented by 24</translation>
    </message>
    <message>
        <source>5 · 关闭按钮</source>
        <translation>5 · close button</translation>
    </message>
    <message>
        <source>按下</source>
        <translation>Pressed</translation>
    </message>
    <message>
        <source>禁用</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>下单</source>
        <translation>Order</translation>
    </message>
    <message>
        <source>图片按钮</source>
        <translation>Image button</translation>
    </message>
    <message>
        <source>五种图片方式的四种状态；没有专用图片的状态由另一种状态代替。</source>
        <translation>Four states of the five kinds of images; another state stands in for one that has no image of its own.</translation>
    </message>
    <message>
        <source>方式与状态</source>
        <translation>Kinds and states</translation>
    </message>
    <message>
        <source>第 %1 行：委托已报，等待成交</source>
        <translation>Line %1: order reported, waiting for a fill</translation>
    </message>
    <message>
        <source>信息</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>参数已保存。</source>
        <translation>The parameters have been saved.</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>行情连接已断开，正在重新连接。</source>
        <translation>The quote connection was lost; reconnecting.</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>委托被拒绝：可用资金不足。</source>
        <translation>Order rejected: not enough available funds.</translation>
    </message>
    <message>
        <source>询问</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>界面设置已更改，是否立即重新启动？</source>
        <translation>The interface settings have changed. Restart now?</translation>
    </message>
    <message>
        <source>没有图标</source>
        <translation>No icon</translation>
    </message>
    <message>
        <source>没有图标的消息更窄、更矮。</source>
        <translation>Without an icon a message is narrower and lower.</translation>
    </message>
    <message>
        <source>倒计时</source>
        <translation>Countdown</translation>
    </message>
    <message>
        <source>窗口将自动关闭。</source>
        <translation>This window closes by itself.</translation>
    </message>
    <message>
        <source>没有按钮</source>
        <translation>No button</translation>
    </message>
    <message>
        <source>正在退出，请稍候。</source>
        <translation>Quitting, please wait.</translation>
    </message>
    <message>
        <source>很长的单词</source>
        <translation>A very long word</translation>
    </message>
    <message>
        <source>六个按钮</source>
        <translation>Six buttons</translation>
    </message>
    <message>
        <source>保存对交易参数的修改？</source>
        <translation>Save the changes to the trade parameters?</translation>
    </message>
    <message>
        <source>长文字</source>
        <translation>A long text</translation>
    </message>
    <message>
        <source>科创板股票的单笔申报数量不得少于 200 股，超过 200 股的部分可以以 1 股为单位递增；市价申报的单笔数量不得超过 5 万股，限价申报的单笔数量不得超过 10 万股。卖出时余额不足 200 股的部分，应当一次性申报卖出。</source>
        <translation>An order for a STAR-board stock is for at least 200 shares and may grow by single shares beyond them; a market order is for at most 50,000 shares, a limit order for at most 100,000. A remainder of less than 200 shares must be sold at once.</translation>
    </message>
    <message>
        <source>二十行文字</source>
        <translation>Twenty lines</translation>
    </message>
    <message>
        <source>交易客户端</source>
        <translation>Trading Client</translation>
    </message>
    <message>
        <source>消息框</source>
        <translation>Message box</translation>
    </message>
    <message>
        <source>单击图片打开可操作的消息框。</source>
        <translation>Click a picture to open the live box.</translation>
    </message>
    <message>
        <source>图标、按钮与文字</source>
        <translation>Icons, buttons and texts</translation>
    </message>
    <message>
        <source>提示标签与按键单元格</source>
        <translation>Tip label and hotkey cell</translation>
    </message>
    <message>
        <source>错误用红色，正确用绿色；提示先停留 1.5 秒，再用 1 秒淡出。</source>
        <translation>Red for an error, green for a correct value; a tip stays for 1.5 seconds and fades within one more.</translation>
    </message>
    <message>
        <source>提示标签</source>
        <translation>Tip label</translation>
    </message>
    <message>
        <source>应为 100 的倍数</source>
        <translation>Multiples of 100</translation>
    </message>
    <message>
        <source>输入正确</source>
        <translation>Correct</translation>
    </message>
    <message>
        <source>正确</source>
        <translation>Correct</translation>
    </message>
    <message>
        <source>正在淡出</source>
        <translation>Fading away</translation>
    </message>
    <message>
        <source>淡出至一半</source>
        <translation>Half faded</translation>
    </message>
    <message>
        <source>与全局快捷键冲突</source>
        <translation>Is a global hotkey</translation>
    </message>
    <message>
        <source>显示并淡出</source>
        <translation>Show and fade</translation>
    </message>
    <message>
        <source>按键单元格</source>
        <translation>Hotkey cell</translation>
    </message>
    <message>
        <source>空</source>
        <translation>Empty</translation>
    </message>
    <message>
        <source>已设置</source>
        <translation>Set</translation>
    </message>
    <message>
        <source>提示与按键</source>
        <translation>Tips and hotkeys</translation>
    </message>
    <message>
        <source>视图(&amp;V)</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>皮肤</source>
        <translation>Skin</translation>
    </message>
    <message>
        <source>控件展示</source>
        <translation>Widget gallery</translation>
    </message>
    <message>
        <source>图标</source>
        <translation>Icons</translation>
    </message>
    <message>
        <source>严重错误</source>
        <translation>Critical</translation>
    </message>
    <message>
        <source>问题</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>撤消</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>由皮肤提供，按每种大小重新绘制。</source>
        <translation>The skin provides them; they are drawn afresh for every size.</translation>
    </message>
    <message>
        <source>消息框图标</source>
        <translation>Message box icons</translation>
    </message>
    <message>
        <source>工具栏图标</source>
        <translation>Tool bar icons</translation>
    </message>
    <message>
        <source>%1，禁用</source>
        <translation>%1, disabled</translation>
    </message>
</context>
<context>
    <name>Instance</name>
    <message>
        <source>无法使用 %1：%2</source>
        <translation>Cannot use %1: %2</translation>
    </message>
    <message>
        <source>无法创建目录 %1</source>
        <translation>Cannot create the directory %1</translation>
    </message>
    <message>
        <source>客户端已在运行（数据目录 %1）</source>
        <translation>The client is already running (data directory %1)</translation>
    </message>
    <message>
        <source>无法读取重启程序 %1：%2</source>
        <translation>Cannot read the restarter %1: %2</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>语言 Language(&amp;L)</source>
        <extracomment>Understood in every language, so that somebody who chose a wrong one finds back.</extracomment>
        <translation>&amp;Language 语言</translation>
    </message>
    <message>
        <source>交易客户端</source>
        <translation>Trading Client</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>交易客户端</source>
        <translation>Trading Client</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>打开交易设置（%1）</source>
        <translation>Open the trading settings (%1)</translation>
    </message>
    <message>
        <source>退出(&amp;X)</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>关于(&amp;A)</source>
        <translation>&amp;About</translation>
    </message>
    <message>
        <source>系统(&amp;S)</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>视图(&amp;V)</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>皮肤</source>
        <translation>Skin</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>工具栏</source>
        <translation>Toolbar</translation>
    </message>
    <message>
        <source>参数文件：%1</source>
        <translation>Record: %1</translation>
    </message>
    <message>
        <source>设置模块无法创建设置窗口。</source>
        <translation>The settings module could not create the settings window.</translation>
    </message>
    <message>
        <source>%1 已确认，没有修改</source>
        <translation>%1 confirmed, nothing changed</translation>
    </message>
    <message numerus="yes">
        <source>%1 已确认，修改了 %n 项</source>
        <translation>
            <numerusform>%1 confirmed, %n value changed</numerusform>
            <numerusform>%1 confirmed, %n values changed</numerusform>
        </translation>
    </message>
    <message>
        <source>新的交易参数已生效，但未能保存：
%1

原文件未改动，退出客户端时将再次尝试保存。</source>
        <translation>The new trading parameters are in effect but could not be saved:
%1

The old file is unchanged. Saving is tried again when the client quits.</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>About</translation>
    </message>
    <message>
        <source>交易客户端 %1

设置模块：%2
数据目录：%3</source>
        <translation>Trading Client %1

Settings module: %2
Data directory: %3</translation>
    </message>
    <message numerus="yes">
        <source>%1 未经确认，修改了 %n 项</source>
        <translation>
            <numerusform>%1 not confirmed, %n value changed</numerusform>
            <numerusform>%1 not confirmed, %n values changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 已导入，修改了 %n 项</source>
        <translation>
            <numerusform>%1 Imported, %n change</numerusform>
            <numerusform>%1 Imported, %n changes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 已恢复默认值，修改了 %n 项</source>
        <translation>
            <numerusform>%1 Defaults restored, %n change</numerusform>
            <numerusform>%1 Defaults restored, %n changes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 已撤消，修改了 %n 项</source>
        <translation>
            <numerusform>%1 Undone, %n change</numerusform>
            <numerusform>%1 Undone, %n changes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>无法写入标准输出：%1</source>
        <translation>Cannot write to the standard output: %1</translation>
    </message>
    <message>
        <source>交易客户端</source>
        <translation>Trading Client</translation>
    </message>
</context>
<context>
    <name>Pictures</name>
    <message>
        <source>无法创建目录 %1</source>
        <translation>Cannot create the directory %1</translation>
    </message>
    <message>
        <source>无法写入 %1</source>
        <translation>Cannot write %1</translation>
    </message>
</context>
<context>
    <name>PlainSettings</name>
    <message>
        <source>无法写入 %1</source>
        <translation>Cannot write %1</translation>
    </message>
</context>
<context>
    <name>Reading</name>
    <message>
        <source>设置模块 %1 无法创建设置窗口</source>
        <translation>The settings module %1 could not create the settings window</translation>
    </message>
</context>
<context>
    <name>RecordActions</name>
    <message>
        <source>导出交易参数(&amp;E)…</source>
        <translation>&amp;Export Trading Parameters…</translation>
    </message>
    <message>
        <source>导入交易参数(&amp;I)…</source>
        <translation>&amp;Import Trading Parameters…</translation>
    </message>
    <message>
        <source>恢复默认值(&amp;D)…</source>
        <translation>Restore &amp;Defaults…</translation>
    </message>
    <message>
        <source>撤消(&amp;U)</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>交易参数 (*.json)</source>
        <translation>Trading parameters (*.json)</translation>
    </message>
    <message>
        <source>导出交易参数</source>
        <translation>Export Trading Parameters</translation>
    </message>
    <message>
        <source>%1 是客户端自己的文件，请选择其他文件。</source>
        <translation>%1 is the client&apos;s own file. Please choose another one.</translation>
    </message>
    <message>
        <source>导入交易参数</source>
        <translation>Import Trading Parameters</translation>
    </message>
    <message>
        <source>交易参数 (*.json);;所有文件 (*)</source>
        <translation>Trading parameters (*.json);;All files (*)</translation>
    </message>
    <message>
        <source>%1 无法导入，交易参数未改动：
%2</source>
        <translation>%1 cannot be imported; the trading parameters are as they were:
%2</translation>
    </message>
    <message>
        <source>用 %1 中的交易参数替换当前的交易参数吗？

当前的交易参数会另存一份。</source>
        <translation>Replace the current trading parameters by those in %1?

A copy of the current ones is kept.</translation>
    </message>
    <message>
        <source>撤消导入(&amp;U)</source>
        <translation>&amp;Undo Import</translation>
    </message>
    <message>
        <source>将所有交易参数恢复为默认值吗？

当前的交易参数会另存一份。</source>
        <translation>Restore the defaults of all trading parameters?

A copy of the current ones is kept.</translation>
    </message>
    <message>
        <source>撤消恢复默认值(&amp;U)</source>
        <translation>&amp;Undo Restoring Defaults</translation>
    </message>
    <message>
        <source>撤消</source>
        <translation>Undo</translation>
    </message>
</context>
<context>
    <name>RecordChange</name>
    <message>
        <source>文件中没有任何交易参数</source>
        <translation>the file holds no trading parameter</translation>
    </message>
</context>
<context>
    <name>RecordFields</name>
    <message>
        <source>卖一</source>
        <translation>Ask 1</translation>
    </message>
    <message>
        <source>卖二</source>
        <translation>Ask 2</translation>
    </message>
    <message>
        <source>卖三</source>
        <translation>Ask 3</translation>
    </message>
    <message>
        <source>卖四</source>
        <translation>Ask 4</translation>
    </message>
    <message>
        <source>卖五</source>
        <translation>Ask 5</translation>
    </message>
    <message>
        <source>最新价</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>空</source>
        <translation>None</translation>
    </message>
    <message>
        <source>买一</source>
        <translation>Bid 1</translation>
    </message>
    <message>
        <source>买二</source>
        <translation>Bid 2</translation>
    </message>
    <message>
        <source>买三</source>
        <translation>Bid 3</translation>
    </message>
    <message>
        <source>买四</source>
        <translation>Bid 4</translation>
    </message>
    <message>
        <source>买五</source>
        <translation>Bid 5</translation>
    </message>
    <message>
        <source>全仓</source>
        <translation>All</translation>
    </message>
    <message>
        <source>1/2</source>
        <translation>1/2</translation>
    </message>
    <message>
        <source>1/3</source>
        <translation>1/3</translation>
    </message>
    <message>
        <source>1/4</source>
        <translation>1/4</translation>
    </message>
    <message>
        <source>1/5</source>
        <translation>1/5</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Is cleared</translation>
    </message>
    <message>
        <source>保留代码</source>
        <translation>Keeps symbol</translation>
    </message>
    <message>
        <source>保留代码价格</source>
        <translation>Keeps symbol, price</translation>
    </message>
    <message>
        <source>保留全部</source>
        <translation>Keeps everything</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>On</translation>
    </message>
    <message>
        <source>光标在数字后</source>
        <translation>Caret after digits</translation>
    </message>
    <message>
        <source>全选数字</source>
        <translation>Digits selected</translation>
    </message>
    <message>
        <source>固定数量</source>
        <translation>Fixed</translation>
    </message>
    <message>
        <source>区间随机</source>
        <translation>Random</translation>
    </message>
    <message>
        <source>数量递减</source>
        <translation>Step-down</translation>
    </message>
    <message>
        <source>限价委托</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>市价委托</source>
        <translation>Market</translation>
    </message>
    <message>
        <source>盘后定价</source>
        <translation>After-hrs</translation>
    </message>
    <message>
        <source>第一项</source>
        <translation>First</translation>
    </message>
    <message>
        <source>第二项</source>
        <translation>Second</translation>
    </message>
    <message>
        <source>第三项</source>
        <translation>Third</translation>
    </message>
    <message>
        <source>买入数量</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>买入金额</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>卖出数量</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>卖出金额</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>股票买入</source>
        <translation>Buy</translation>
    </message>
    <message>
        <source>股票卖出</source>
        <translation>Sell</translation>
    </message>
    <message>
        <source>资金股票</source>
        <translation>Holdings</translation>
    </message>
    <message>
        <source>限价买入</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>市价买入</source>
        <translation>Market</translation>
    </message>
    <message>
        <source>限价卖出</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>市价卖出</source>
        <translation>Market</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message>
        <source>正常字体</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>大字体</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>特大字体</source>
        <translation>X-Large</translation>
    </message>
    <message>
        <source>简体</source>
        <translation>Simplified Chinese</translation>
    </message>
    <message>
        <source>繁體</source>
        <translation>Traditional Chinese</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>%1 股</source>
        <translation>%1 shares</translation>
    </message>
    <message>
        <source>上浮 %1%</source>
        <translation>%1% above last</translation>
    </message>
    <message>
        <source>%1 分钟</source>
        <translation>%1 minutes</translation>
    </message>
    <message>
        <source>买入股票</source>
        <translation>Buy stock</translation>
    </message>
    <message>
        <source>卖出股票</source>
        <translation>Sell stock</translation>
    </message>
    <message>
        <source>持仓</source>
        <translation>Positions</translation>
    </message>
    <message>
        <source>成交</source>
        <translation>Executions</translation>
    </message>
    <message>
        <source>委托</source>
        <translation>Orders</translation>
    </message>
    <message>
        <source>撤单</source>
        <translation>Cancel order</translation>
    </message>
    <message>
        <source>查询</source>
        <translation>Query</translation>
    </message>
    <message>
        <source>全撤</source>
        <translation>Cancel all</translation>
    </message>
    <message>
        <source>撤买</source>
        <translation>Cancel buys</translation>
    </message>
    <message>
        <source>撤卖</source>
        <translation>Cancel sells</translation>
    </message>
    <message>
        <source>撤最后</source>
        <translation>Cancel last</translation>
    </message>
    <message>
        <source>批量下单-买入</source>
        <translation>Batch buy</translation>
    </message>
    <message>
        <source>批量下单-卖出</source>
        <translation>Batch sell</translation>
    </message>
    <message>
        <source>保留字段</source>
        <translation>Reserved</translation>
    </message>
    <message>
        <source>默认买入价格</source>
        <translation>Default buy price</translation>
    </message>
    <message>
        <source>默认卖出价格</source>
        <translation>Default sell price</translation>
    </message>
    <message>
        <source>默认买入数量</source>
        <translation>Default buy quantity</translation>
    </message>
    <message>
        <source>默认卖出数量</source>
        <translation>Default sell quantity</translation>
    </message>
    <message>
        <source>买卖后界面设置</source>
        <translation>Order form after an order</translation>
    </message>
    <message>
        <source>响应点击买卖盘数量</source>
        <translation>Take quantities clicked in the order book</translation>
    </message>
    <message>
        <source>买卖页面输入框默认状态</source>
        <translation>Default state of input boxes</translation>
    </message>
    <message>
        <source>撤单前需要确认</source>
        <translation>Confirm before cancelling an order</translation>
    </message>
    <message>
        <source>委托前需要确认</source>
        <translation>Confirm before placing an order</translation>
    </message>
    <message>
        <source>委托成功后弹出提示对话框</source>
        <translation>Show a message after a successful order</translation>
    </message>
    <message>
        <source>启用股票自动分仓</source>
        <translation>Split large stock orders automatically</translation>
    </message>
    <message>
        <source>分仓基量</source>
        <translation>Split base quantity</translation>
    </message>
    <message>
        <source>分仓拆单策略</source>
        <translation>Split strategy</translation>
    </message>
    <message>
        <source>分仓单笔上限</source>
        <translation>Split maximum per order</translation>
    </message>
    <message>
        <source>分仓单笔下限</source>
        <translation>Split minimum per order</translation>
    </message>
    <message>
        <source>分仓递减数量</source>
        <translation>Split decrement</translation>
    </message>
    <message>
        <source>启用科创板股票自动分仓</source>
        <translation>Split large STAR-board orders automatically</translation>
    </message>
    <message>
        <source>科创板分仓基量</source>
        <translation>STAR split base quantity</translation>
    </message>
    <message>
        <source>科创板拆单策略</source>
        <translation>STAR split strategy</translation>
    </message>
    <message>
        <source>科创板单笔上限</source>
        <translation>STAR split maximum per order</translation>
    </message>
    <message>
        <source>科创板单笔下限</source>
        <translation>STAR split minimum per order</translation>
    </message>
    <message>
        <source>科创板递减数量</source>
        <translation>STAR split decrement</translation>
    </message>
    <message>
        <source>科创板买入保护价选项</source>
        <translation>STAR buy protection choices</translation>
    </message>
    <message>
        <source>科创板卖出保护价选项</source>
        <translation>STAR sell protection choices</translation>
    </message>
    <message>
        <source>科创板买入保护价</source>
        <translation>STAR buy protection</translation>
    </message>
    <message>
        <source>科创板卖出保护价</source>
        <translation>STAR sell protection</translation>
    </message>
    <message>
        <source>买入时委托输入</source>
        <translation>Buy orders entered by</translation>
    </message>
    <message>
        <source>卖出时委托输入</source>
        <translation>Sell orders entered by</translation>
    </message>
    <message>
        <source>登录后默认页面</source>
        <translation>Page after login</translation>
    </message>
    <message>
        <source>界面不操作超过多久锁屏</source>
        <translation>Idle time before locking</translation>
    </message>
    <message>
        <source>默认买入方式</source>
        <translation>Default buy order type</translation>
    </message>
    <message>
        <source>默认卖出方式</source>
        <translation>Default sell order type</translation>
    </message>
    <message>
        <source>行情代码跟随委托代码</source>
        <translation>Quote follows order symbol</translation>
    </message>
    <message>
        <source>委托代码跟随行情代码</source>
        <translation>Order follows quote symbol</translation>
    </message>
    <message>
        <source>行情交易界面字体</source>
        <translation>Interface font</translation>
    </message>
    <message>
        <source>行情交易界面语言</source>
        <translation>Interface language</translation>
    </message>
    <message>
        <source>界面设置页</source>
        <translation>Interface settings page</translation>
    </message>
    <message>
        <source>普通交易快捷键</source>
        <translation>Cash trading</translation>
    </message>
    <message>
        <source>信用交易快捷键</source>
        <translation>Margin trading</translation>
    </message>
    <message>
        <source>%1 至 %2 的整数</source>
        <translation>an integer from %1 to %2</translation>
    </message>
    <message>
        <source>%1 个十六进制字节</source>
        <translation>%1 bytes in hexadecimal</translation>
    </message>
    <message>
        <source>文本</source>
        <translation>text</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Shown</translation>
    </message>
    <message>
        <source>隐藏</source>
        <translation>Hidden</translation>
    </message>
    <message>
        <source>未设置</source>
        <translation>Not set</translation>
    </message>
    <message>
        <source>无法识别的按键</source>
        <translation>Not a key</translation>
    </message>
    <message>
        <source>按 %1：%2</source>
        <extracomment>%1 is a key, %2 what it does</extracomment>
        <translation>Press %1: %2</translation>
    </message>
    <message>
        <source>由客户端保留</source>
        <translation>kept by the client</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>RecordFile</name>
    <message>
        <source>无法读取：%1</source>
        <translation>cannot be read: %1</translation>
    </message>
    <message>
        <source>不是普通文件</source>
        <translation>is not a regular file</translation>
    </message>
    <message>
        <source>第 %1 字节处格式错误：%2</source>
        <translation>malformed at byte %1: %2</translation>
    </message>
    <message>
        <source>内容不是 JSON 对象</source>
        <translation>is not a JSON object</translation>
    </message>
</context>
<context>
    <name>RecordJson</name>
    <message>
        <source>%1 的值 %2 无效（应为%3）</source>
        <translation>%1 holds %2, which is not valid (expected %3)</translation>
    </message>
    <message>
        <source>%1 的值 %2 无效（应为 %3 个元素的数组）</source>
        <translation>%1 holds %2, which is not valid (expected an array of %3 elements)</translation>
    </message>
</context>
<context>
    <name>RecordModel</name>
    <message>
        <source>原为空</source>
        <translation>was empty</translation>
    </message>
    <message>
        <source>原为 %1</source>
        <translation>was %1</translation>
    </message>
    <message>
        <source>参数</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>字段</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>存储值</source>
        <translation>Stored value</translation>
    </message>
    <message>
        <source>含义</source>
        <translation>Meaning</translation>
    </message>
    <message>
        <source>最近的修改</source>
        <translation>Recent changes</translation>
    </message>
</context>
<context>
    <name>RecordStore</name>
    <message>
        <source>无法创建目录 %1</source>
        <translation>Cannot create the directory %1</translation>
    </message>
    <message>
        <source>交易参数文件 %1 无法使用，已使用默认值：</source>
        <translation>The trading parameter file %1 cannot be used; the defaults are used instead:</translation>
    </message>
    <message>
        <source>交易参数文件 %1 中有无效的值，这些参数已使用默认值：</source>
        <translation>The trading parameter file %1 holds values that are not valid; these parameters have their defaults:</translation>
    </message>
    <message>
        <source>该文件已移至 %1。</source>
        <translation>The file was moved to %1.</translation>
    </message>
    <message>
        <source>该文件的副本保存在 %1。</source>
        <translation>A copy of the file is kept as %1.</translation>
    </message>
    <message>
        <source>该文件无法移走，仍在原处。</source>
        <translation>The file could not be moved and is still where it was.</translation>
    </message>
    <message>
        <source>无法保存该文件的副本。</source>
        <translation>A copy of the file could not be kept.</translation>
    </message>
    <message>
        <source>无法保留不可用的文件 %1</source>
        <translation>The unusable file %1 could not be kept</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>仅显示最近修改</source>
        <translation>Only the latest changes</translation>
    </message>
    <message>
        <source>尚未修改</source>
        <translation>Nothing changed yet</translation>
    </message>
    <message>
        <source>搜索参数、字段或数值</source>
        <translation>Search parameters, fields or values</translation>
    </message>
    <message>
        <source>交易参数</source>
        <translation>Trading parameters</translation>
    </message>
    <message>
        <source>复制(&amp;C)</source>
        <translation>&amp;Copy</translation>
    </message>
</context>
<context>
    <name>RestartOffer</name>
    <message>
        <source>交易客户端</source>
        <translation>Trading Client</translation>
    </message>
    <message>
        <source>部分修改需要重启后生效，确定现在重启吗？</source>
        <translation>Some changes take effect after a restart. Restart now?</translation>
    </message>
    <message>
        <source>无法启动重启程序 %1。</source>
        <translation>Cannot start the restarter %1.</translation>
    </message>
</context>
<context>
    <name>Screenshots</name>
    <message>
        <source>设置窗口缺少 %1</source>
        <translation>The settings window lacks %1</translation>
    </message>
</context>
<context>
    <name>SettingsModule</name>
    <message>
        <source>无法加载设置模块 %1：文件不存在</source>
        <translation>Cannot load the settings module %1: the file does not exist</translation>
    </message>
    <message>
        <source>无法加载设置模块 %1：%2</source>
        <translation>Cannot load the settings module %1: %2</translation>
    </message>
    <message>
        <source>无法加载设置模块 %1：缺少符号 %2</source>
        <translation>Cannot load the settings module %1: it lacks the symbol %2</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>设置</source>
        <translation>Settings</translation>
    </message>
</context>
<context>
    <name>SkinReport</name>
    <message>
        <source>文件夹不存在</source>
        <translation>the folder is missing</translation>
    </message>
    <message>
        <source>没有指定皮肤</source>
        <translation>no skin was named</translation>
    </message>
    <message>
        <source>无法打开皮肤表</source>
        <translation>the table cannot be opened</translation>
    </message>
    <message>
        <source>皮肤表大于 %1 字节</source>
        <translation>the table is larger than %1 bytes</translation>
    </message>
    <message>
        <source>不是 JSON 表：%1，位于第 %2 字节</source>
        <translation>not a JSON table: %1, at byte %2</translation>
    </message>
    <message>
        <source>皮肤表必须是由各节组成的对象</source>
        <translation>the table must be an object of sections</translation>
    </message>
    <message>
        <source>该节必须是由键组成的对象</source>
        <translation>the section must be an object of keys</translation>
    </message>
    <message>
        <source>缺少该键（%1）</source>
        <translation>the %1 is absent</translation>
    </message>
    <message>
        <source>调色板没有这个角色</source>
        <translation>no such role of the palette</translation>
    </message>
    <message>
        <source>每种语言的名称必须是文本</source>
        <translation>the name in a language must be a text</translation>
    </message>
    <message>
        <source>名称必须是由各语言组成的对象</source>
        <translation>the name must be an object of languages</translation>
    </message>
    <message>
        <source>颜色必须是文本 #RRGGBB 或 #AARRGGBB</source>
        <translation>a colour must be a text #RRGGBB or #AARRGGBB</translation>
    </message>
    <message>
        <source>“%1”必须是 1 到 %2 的整数</source>
        <translation>&quot;%1&quot; must be a whole number from 1 to %2</translation>
    </message>
    <message>
        <source>字体必须是对象</source>
        <translation>a font must be an object</translation>
    </message>
    <message>
        <source>每个字体族必须是文本</source>
        <translation>every family must be a text</translation>
    </message>
    <message>
        <source>“families”至少要列出一个字体族</source>
        <translation>&quot;families&quot; must list at least one family</translation>
    </message>
    <message>
        <source>“weight”必须是 100、200……或 900</source>
        <translation>&quot;weight&quot; must be 100, 200, ... or 900</translation>
    </message>
    <message>
        <source>图像必须是对象</source>
        <translation>an image must be an object</translation>
    </message>
    <message>
        <source>“file”必须指明图像文件</source>
        <translation>&quot;file&quot; must name the image</translation>
    </message>
    <message>
        <source>“file”必须位于皮肤的文件夹内</source>
        <translation>&quot;file&quot; must lie inside the skin&apos;s folder</translation>
    </message>
    <message>
        <source>“size”必须是 [宽, 高]</source>
        <translation>&quot;size&quot; must be [width, height]</translation>
    </message>
    <message>
        <source>%1 帧不能均分宽度 %2</source>
        <translation>%1 frames do not divide the width %2</translation>
    </message>
    <message>
        <source>%1 帧不能均分位图的 %2 像素</source>
        <translation>%1 frames do not divide the bitmap&apos;s %2 pixels</translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation>the file cannot be read</translation>
    </message>
    <message>
        <source>文件不存在</source>
        <translation>the file is missing</translation>
    </message>
    <message>
        <source>文件大于 %1 字节</source>
        <translation>the file is larger than %1 bytes</translation>
    </message>
    <message>
        <source>位图的边长大于 %1 像素</source>
        <translation>the bitmap is larger than %1 pixels a side</translation>
    </message>
    <message>
        <source>不是 PNG 位图</source>
        <translation>not a PNG bitmap</translation>
    </message>
    <message>
        <source>不是 SVG 图形</source>
        <translation>not an SVG drawing</translation>
    </message>
    <message>
        <source>没有这一节</source>
        <translation>no such section</translation>
    </message>
    <message>
        <source>没有这个键</source>
        <translation>no such key</translation>
    </message>
    <message>
        <source>没有字段“%1”</source>
        <translation>no such field &quot;%1&quot;</translation>
    </message>
    <message>
        <source>无法使用皮肤 %1：</source>
        <translation>The skin %1 cannot be used:</translation>
    </message>
    <message>
        <source>皮肤 %1 没有问题。</source>
        <translation>Nothing is wrong with the skin %1.</translation>
    </message>
</context>
</TS>
