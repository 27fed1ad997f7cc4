#include "support/Files.h"
#include "support/TestMain.h"
#include "x11/AccessibleBus.h"
#include "x11/Xdotool.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

// What is read of an input: what it is, what it is called, how it stands.
QString reading(const AccessibleObject& object, const QString& role)
{
    if (role == QLatin1String("combo box"))
        return object.labels() + object.name();
    if (role == QLatin1String("check box"))
        return object.name() + text(object.is(AccessibleObject::Checked) ? "：√" : "：×");
    if (role == QLatin1String("spin box"))
        return object.name() + text("：") + QString::number(object.value());
    if (role == QLatin1String("text"))
        return object.is(AccessibleObject::ReadOnly)
            ? object.name() + text("：") + object.text() + text("，") + object.description()
            : object.name() + text("：") + object.text();
    return QString();
}

// Every input in sight below @p object, in the order of the tree.
QStringList readings(const AccessibleObject& object)
{
    QStringList lines;
    for (const AccessibleObject& child : object.children()) {
        if (!child.is(AccessibleObject::Showing))
            continue;
        const QString line = reading(child, child.role());
        if (line.isEmpty())
            lines << readings(child);
        else
            lines << line;
    }
    return lines;
}

struct Page {
    const char* group;
    const char* entry;
    const char* inputs;
};

// What a new user finds.
constexpr Page pages[] = {
    {"系统设置", "基础设置",
     "买入时委托输入：买入数量\n"
     "卖出时委托输入：卖出数量\n"
     "登录后默认页面：股票买入\n"
     "界面不操作超过多久锁屏(分)：30"},
    {"系统设置", "联动设置", "行情代码跟随委托代码：是"},
    {"系统设置", "界面设置", "交易界面缩放比例：100"},
    {"交易设置", "默认设置",
     "默认买入价格：卖一\n"
     "默认买入数量：空\n"
     "默认卖出价格：买一\n"
     "默认卖出数量：空\n"
     "买卖后界面设置：清空\n"
     "响应点击买卖盘数量：√\n"
     "买卖页面输入框默认状态：全选数字"},
    {"交易设置", "提示设置",
     "撤单前需要确认：√\n"
     "委托前需要确认：√\n"
     "委托成功后弹出提示对话框：√"},
    {"快捷键设置", "普通快捷设置",
     "买入股票：Ctrl+B，正常\n"
     "卖出股票：Ctrl+S，正常\n"
     "撤单：Ctrl+R，正常\n"
     "查询：Ctrl+F，正常\n"
     "持仓：Ctrl+H，正常\n"
     "成交：Ctrl+D，正常\n"
     "委托：Ctrl+O，正常\n"
     "全撤：Ctrl+Q，正常\n"
     "撤买：Ctrl+Shift+B，正常\n"
     "撤卖：Ctrl+Shift+S，正常\n"
     "撤最后：Ctrl+L，正常\n"
     "批量下单-买入：Ctrl+Alt+B，正常\n"
     "批量下单-卖出：Ctrl+Alt+S，正常"},
    {"快捷键设置", "信用快捷设置",
     "买入股票：Alt+B，正常\n"
     "卖出股票：Alt+S，正常\n"
     "撤单：Alt+R，正常\n"
     "查询：Alt+F，正常\n"
     "持仓：Alt+H，正常\n"
     "成交：Alt+D，正常\n"
     "委托：Alt+O，正常\n"
     "全撤：Alt+Q，正常\n"
     "撤买：Alt+Shift+B，正常\n"
     "撤卖：Alt+Shift+S，正常\n"
     "撤最后：Alt+L，正常\n"
     "批量下单-买入：Alt+1，正常\n"
     "批量下单-卖出：Alt+2，正常"},
    {"快捷键设置", "全局交易设置",
     "刷新：F5，正常\n"
     "显示/隐藏交易模块：F12，正常"},
};

} // namespace

/// A user who hears the screen, by the bus that screen readers use.
class tst_ReaderOnScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void changesSettings();
    void hearsWhyAQuantityIsRefused();

private:
    void start(QProcess& program, const char* file) const;

    const QTemporaryDir m_home;
    AccessibleBus m_bus;
};

void tst_ReaderOnScreen::initTestCase()
{
    // Both buses keep their files there too.
    qputenv("HOME", m_home.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", m_home.path().toLocal8Bit());
    qputenv("GSETTINGS_BACKEND", "memory");
    QVERIFY(m_bus.start());
}

void tst_ReaderOnScreen::start(QProcess& program, const char* file) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(text("QT_QPA_PLATFORM"), text("xcb"));
    environment.insert(text("DBUS_SESSION_BUS_ADDRESS"), m_bus.sessionAddress());
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(text(file), QStringList());
}

void tst_ReaderOnScreen::changesSettings()
{
    QProcess client;
    start(client, CLIENT_PROGRAM);

    AccessibleObject program;
    const auto found = [&program](const char* role, const char* name) {
        return program.find(text(role), text(name));
    };
    QTRY_VERIFY_WITH_TIMEOUT((program = m_bus.program(text("tradeclient"))).isKnown(), patience);
    QTRY_VERIFY_WITH_TIMEOUT(found("push button", "设置").isKnown(), patience);
    QVERIFY(found("push button", "设置").press());
    AccessibleObject dialog;
    QTRY_VERIFY_WITH_TIMEOUT((dialog = found("filler", "交易客户端设置")).isKnown(), patience);

    const auto open = [&dialog](const char* group, const char* entry) {
        const AccessibleObject tab = dialog.find(text("page tab"), text(group));
        QVERIFY(tab.press());
        QTRY_VERIFY_WITH_TIMEOUT(tab.is(AccessibleObject::Selected), patience);
        const AccessibleObject list = dialog.find(text("list"), text(group));
        const AccessibleObject item = list.find(text("list item"), text(entry));
        QVERIFY(item.press());
        QTRY_VERIFY_WITH_TIMEOUT(item.is(AccessibleObject::Selected), patience);
        QTRY_VERIFY_WITH_TIMEOUT(dialog.find(text("filler"), text(entry)).isKnown(), patience);
    };
    for (const Page& page : pages) {
        open(page.group, page.entry);
        const AccessibleObject shown = dialog.find(text("filler"), text(page.entry));
        QCOMPARE(readings(shown).join(QLatin1Char('\n')), text(page.inputs));
    }

    // A choice, by the keys of a combo box, and a check box.
    open("交易设置", "默认设置");
    const AccessibleObject price = dialog.find(text("combo box"), text("卖一"));
    QCOMPARE(price.labels(), text("默认买入价格："));
    price.grabFocus();
    QTRY_VERIFY_WITH_TIMEOUT(price.is(AccessibleObject::Focused), patience);
    press({text("Down"), text("Down")});
    QTRY_COMPARE_WITH_TIMEOUT(price.name(), text("卖三"), patience);
    const AccessibleObject box = dialog.find(text("check box"), text("响应点击买卖盘数量"));
    QVERIFY(box.act(text("Toggle")));
    QTRY_VERIFY_WITH_TIMEOUT(!box.is(AccessibleObject::Checked), patience);

    // A hotkey: first one that another function has, then a free one.
    open("快捷键设置", "普通快捷设置");
    const AccessibleObject cell
        = dialog.find(text("table"), text("普通交易快捷键")).find(text("text"), text("买入股票"));
    cell.grabFocus();
    QTRY_VERIFY_WITH_TIMEOUT(cell.is(AccessibleObject::Focused), patience);
    QCOMPARE(m_bus.descriptionChanges(cell), 0);
    press({text("ctrl+s")});
    QTRY_COMPARE_WITH_TIMEOUT(m_bus.descriptionChanges(cell), 1, patience);
    QCOMPARE(cell.description(), text("与卖出股票重复"));
    press({text("ctrl+alt+j")});
    QTRY_COMPARE_WITH_TIMEOUT(m_bus.descriptionChanges(cell), 2, patience);
    QCOMPARE(cell.description(), text("正常"));
    QCOMPARE(cell.text(), text("Ctrl+Alt+J"));

    const QString record
        = m_home.filePath(text(".com.kivotrade.tradeclient/config/trade_parameters.json"));
    QVERIFY(!QFile::exists(record));
    QVERIFY(dialog.find(text("push button"), text("确定")).press());
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(record), patience);
    const QJsonObject stored = QJsonDocument::fromJson(contentOf(record)).object();
    QCOMPARE(stored.value(text("defaultBuyPrice")).toInt(-1), 2);
    QCOMPARE(stored.value(text("clickBookQty")).toInt(-1), 0);
    QCOMPARE(stored.value(text("stockShortcuts")).toArray().at(0).toString(), text("Ctrl+Alt+J"));
    QTRY_VERIFY_WITH_TIMEOUT(!found("filler", "交易客户端设置").isKnown(), patience);

    client.terminate();
    QVERIFY(client.waitForFinished(patience));
}

// On a page that the client does not list.
void tst_ReaderOnScreen::hearsWhyAQuantityIsRefused()
{
    QProcess host;
    start(host, SPLITTING_HOST);
    AccessibleObject program;
    QTRY_VERIFY_WITH_TIMEOUT((program = m_bus.program(text("splittingHost"))).isKnown(), patience);
    AccessibleObject field;
    QTRY_VERIFY_WITH_TIMEOUT((field = program.find(text("text"), text("单笔下限"))).isKnown(),
                             patience);
    // The tip, which comes into sight for a moment only.
    AccessibleObject tip;
    for (const AccessibleObject& part :
         program.find(text("filler"), text("交易客户端设置")).children()) {
        if (part.role() == QLatin1String("alert message"))
            tip = part;
    }
    QVERIFY(tip.isKnown());
    QVERIFY(!tip.is(AccessibleObject::Showing));
    QCOMPARE(m_bus.appearances(tip), 0);

    field.grabFocus();
    QTRY_VERIFY_WITH_TIMEOUT(field.is(AccessibleObject::Focused), patience);
    press({text("ctrl+a"), text("5"), text("0"), text("Tab")});
    QTRY_COMPARE_WITH_TIMEOUT(m_bus.appearances(tip), 1, patience);
    QCOMPARE(tip.name(), text("不能小于100股"));
    QTRY_COMPARE_WITH_TIMEOUT(m_bus.descriptionChanges(field), 1, patience);
    QCOMPARE(field.description(), text("不能小于100股"));
    QCOMPARE(field.text(), text("50"));

    host.terminate();
    QVERIFY(host.waitForFinished(patience));
}

TRADECONFIG_TEST_MAIN(tst_ReaderOnScreen)
#include "tst_ReaderOnScreen.moc"
