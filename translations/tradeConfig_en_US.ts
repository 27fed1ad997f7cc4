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
        <translation>Below minimum or decrement</translation>
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
        <translation>Cancel last order</translation>
    </message>
    <message>
        <source>批量下单-买入</source>
        <translation>Batch order: buy</translation>
    </message>
    <message>
        <source>批量下单-卖出</source>
        <translation>Batch order: sell</translation>
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
        <translation>Same as %1</translation>
    </message>
</context>
</TS>
