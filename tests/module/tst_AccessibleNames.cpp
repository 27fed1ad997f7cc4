#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/dialog/AccessibleNames.h"

#include <QAccessible>
#include <QTranslator>

namespace {

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

QAccessibleInterface* of(QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); }

QString nameOf(const QAccessibleInterface* known) { return known->text(QAccessible::Name); }

QString labelOf(const QAccessibleInterface* input)
{
    QStringList labels;
    for (const auto& relation : input->relations(QAccessible::Label))
        labels << nameOf(relation.first);
    return labels.join(QLatin1Char('|'));
}

// What somebody hears of an input; empty for what is none.
QString spoken(QAccessibleInterface* known)
{
    switch (known->role()) {
    case QAccessible::ComboBox:
        return text("choice ") + labelOf(known);
    case QAccessible::SpinBox:
        return text("number ") + nameOf(known);
    case QAccessible::CheckBox:
        return text("box ") + nameOf(known);
    case QAccessible::Button:
        return text("button ") + nameOf(known);
    case QAccessible::Table:
        return text("table ") + nameOf(known);
    case QAccessible::EditableText:
        return known->state().readOnly
            ? text("key ") + nameOf(known) + text(", ") + known->text(QAccessible::Description)
            : text("text ") + nameOf(known);
    default:
        return QString();
    }
}

// Every input below @p known, by the tree that assistive technology walks.
QStringList inputsBelow(QAccessibleInterface* known)
{
    QStringList lines;
    for (int index = 0; index < known->childCount(); ++index) {
        QAccessibleInterface* const child = known->child(index);
        const QString line = spoken(child);
        if (!line.isEmpty())
            lines << line;
        // The parts of a choice or a number are no inputs of their own.
        if (line.isEmpty() || child->role() == QAccessible::Table)
            lines << inputsBelow(child);
    }
    return lines;
}

struct Page {
    const char* language;
    const char* page;
    const char* name;
    const char* inputs; ///< by line, in the order of the tree
};

// clang-format off
constexpr Page pages[] = {
    {"zh_CN", "page_3", "基础设置",
     R"(choice 买入时委托输入：
choice 卖出时委托输入：
choice 登录后默认页面：
text 界面不操作超过多久锁屏(分)
choice 默认买入方式：
choice 默认卖出方式：)"},
    {"zh_CN", "page_4", "联动设置",
     R"(choice 行情代码跟随委托代码：
choice 委托代码跟随行情代码：)"},
    {"zh_CN", "page_5", "界面设置",
     R"(choice 行情交易界面言语：
number 交易界面缩放比例
choice 行情交易界面字体：)"},
    {"zh_CN", "page_6", "默认设置",
     R"(choice 默认买入价格：
choice 默认买入数量：
choice 默认卖出价格：
choice 默认卖出数量：
choice 买卖后界面设置：
box 响应点击买卖盘数量
choice 买卖页面输入框默认状态：)"},
    {"zh_CN", "page_7", "提示设置",
     R"(box 撤单前需要确认
box 委托前需要确认
box 委托成功后弹出提示对话框)"},
    {"zh_CN", "page_8", "分仓设置",
     R"(box 启用股票自动分仓
text 基量
choice 拆单策略：
text 单笔上限
text 单笔下限
text 递减数量)"},
    {"zh_CN", "page_9", "科创板设置",
     R"(box 启用科创板股票自动分仓
text 基量
choice 拆单策略：
text 单笔上限
text 单笔下限
text 递减数量
choice 科创板买入保护价默认值最新价上浮：
button 修改科创板买入保护价默认值
choice 科创板卖出保护价默认值最新价上浮：
button 修改科创板卖出保护价默认值)"},
    {"zh_CN", "page_16", "普通快捷设置",
     R"(table 普通交易快捷键
key 买入股票, 正常
key 卖出股票, 正常
key 撤单, 正常
key 查询, 正常
key 持仓, 正常
key 成交, 正常
key 委托, 正常
key 全撤, 正常
key 撤买, 正常
key 撤卖, 正常
key 撤最后, 正常
key 批量下单-买入, 正常
key 批量下单-卖出, 正常)"},
    {"zh_CN", "page_10", "信用快捷设置",
     R"(table 信用交易快捷键
key 买入股票, 正常
key 卖出股票, 正常
key 撤单, 正常
key 查询, 正常
key 持仓, 正常
key 成交, 正常
key 委托, 正常
key 全撤, 正常
key 撤买, 正常
key 撤卖, 正常
key 撤最后, 正常
key 批量下单-买入, 正常
key 批量下单-卖出, 正常)"},
    {"zh_CN", "page_11", "全局交易设置",
     R"(table 交易全局快捷键
key 刷新, 正常
key 显示/隐藏交易模块, 正常)"},
    {"zh_TW", "page_3", "基本設定",
     R"(choice 買進時委託輸入：
choice 賣出時委託輸入：
choice 登入後預設頁面：
text 閒置多久後鎖定螢幕(分)
choice 預設買進方式：
choice 預設賣出方式：)"},
    {"zh_TW", "page_4", "連動設定",
     R"(choice 行情代碼跟隨委託代碼：
choice 委託代碼跟隨行情代碼：)"},
    {"zh_TW", "page_5", "介面設定",
     R"(choice 行情交易介面語言：
number 交易介面縮放比例
choice 行情交易介面字型：)"},
    {"zh_TW", "page_6", "預設設定",
     R"(choice 預設買進價格：
choice 預設買進數量：
choice 預設賣出價格：
choice 預設賣出數量：
choice 買賣後介面設定：
box 回應點擊五檔委買委賣數量
choice 買賣頁面輸入框預設狀態：)"},
    {"zh_TW", "page_7", "提示設定",
     R"(box 刪單前需要確認
box 委託前需要確認
box 委託成功後彈出提示對話框)"},
    {"zh_TW", "page_8", "分單設定",
     R"(box 啟用股票自動分單
text 基量
choice 拆單策略：
text 單筆上限
text 單筆下限
text 遞減數量)"},
    {"zh_TW", "page_9", "科創板設定",
     R"(box 啟用科創板股票自動分單
text 基量
choice 拆單策略：
text 單筆上限
text 單筆下限
text 遞減數量
choice 科創板買進保護價預設為最新價上浮：
button 修改科創板買進保護價預設值
choice 科創板賣出保護價預設為最新價上浮：
button 修改科創板賣出保護價預設值)"},
    {"zh_TW", "page_16", "普通快速鍵",
     R"(table 普通交易快速鍵
key 買進股票, 正常
key 賣出股票, 正常
key 刪單, 正常
key 查詢, 正常
key 庫存, 正常
key 成交, 正常
key 委託, 正常
key 全部刪單, 正常
key 刪買單, 正常
key 刪賣單, 正常
key 刪最後一筆, 正常
key 批次下單-買進, 正常
key 批次下單-賣出, 正常)"},
    {"zh_TW", "page_10", "信用快速鍵",
     R"(table 信用交易快速鍵
key 買進股票, 正常
key 賣出股票, 正常
key 刪單, 正常
key 查詢, 正常
key 庫存, 正常
key 成交, 正常
key 委託, 正常
key 全部刪單, 正常
key 刪買單, 正常
key 刪賣單, 正常
key 刪最後一筆, 正常
key 批次下單-買進, 正常
key 批次下單-賣出, 正常)"},
    {"zh_TW", "page_11", "全域快速鍵",
     R"(table 交易全域快速鍵
key 重新整理, 正常
key 顯示/隱藏交易模組, 正常)"},
    {"en_US", "page_3", "General",
     R"(choice Enter buy orders by:
choice Enter sell orders by:
choice Page shown after login:
text Lock screen when idle for (min)
choice Default buy order type:
choice Default sell order type:)"},
    {"en_US", "page_4", "Linking",
     R"(choice Quote follows order symbol:
choice Order follows quote symbol:)"},
    {"en_US", "page_5", "Interface",
     R"(choice Interface language:
number Interface scale
choice Interface font:)"},
    {"en_US", "page_6", "Defaults",
     R"(choice Default buy price:
choice Default buy quantity:
choice Default sell price:
choice Default sell quantity:
choice After an order, the form:
box Take quantities clicked in the order book
choice Default state of input boxes:)"},
    {"en_US", "page_7", "Prompts",
     R"(box Confirm before cancelling an order
box Confirm before placing an order
box Show a message after a successful order)"},
    {"en_US", "page_8", "Splitting",
     R"(box Split large stock orders automatically
text Base quantity
choice Strategy:
text Maximum per order
text Minimum per order
text Decrement)"},
    {"en_US", "page_9", "STAR-board settings",
     R"(box Split large STAR-board orders automatically
text Base quantity
choice Strategy:
text Maximum per order
text Minimum per order
text Decrement
choice STAR buy protection, above last:
button Change the STAR buy protection
choice STAR sell protection, above last:
button Change the STAR sell protection)"},
    {"en_US", "page_16", "Cash",
     R"(table Cash trading
key Buy stock, OK
key Sell stock, OK
key Cancel order, OK
key Query, OK
key Positions, OK
key Executions, OK
key Orders, OK
key Cancel all, OK
key Cancel buys, OK
key Cancel sells, OK
key Cancel last, OK
key Batch buy, OK
key Batch sell, OK)"},
    {"en_US", "page_10", "Margin",
     R"(table Margin trading
key Buy stock, OK
key Sell stock, OK
key Cancel order, OK
key Query, OK
key Positions, OK
key Executions, OK
key Orders, OK
key Cancel all, OK
key Cancel buys, OK
key Cancel sells, OK
key Cancel last, OK
key Batch buy, OK
key Batch sell, OK)"},
    {"en_US", "page_11", "Global",
     R"(table Global hotkeys
key Refresh, OK
key Show/hide trading, OK)"},
};
// clang-format on

class Language {
public:
    explicit Language(const QString& code)
    {
        chosen = code == QLatin1String("zh_CN")
            || (m_translator.load(text(":/translations/tradeConfig_") + code)
                && QCoreApplication::installTranslator(&m_translator));
    }

    bool chosen = false;

private:
    QTranslator m_translator;
};

void showInterfacePage(FakeTrade& trade) { trade.parm().uiPageMode = 2; }

} // namespace

class tst_AccessibleNames : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyInputOfEveryPage_data();
    void everyInputOfEveryPage();
    void windowAndGroups_data();
    void windowAndGroups();
    void theTreeLeavesOutNoInput();
    void everyLabelLeadsToItsField();
    void labelsHaveNoMnemonics_data();
    void labelsHaveNoMnemonics();
    void editedProtectionPrice_data();
    void editedProtectionPrice();
    void colons_data();
    void colons();
};

void tst_AccessibleNames::everyInputOfEveryPage_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < int(std::size(pages)); ++index)
        QTest::addRow("%s %s", pages[index].language, pages[index].page) << index;
}

void tst_AccessibleNames::everyInputOfEveryPage()
{
    QFETCH(int, index);
    const Page& page = pages[index];
    const Language language(QLatin1String(page.language));
    QVERIFY(language.chosen);
    const TestDialog dialog(showInterfacePage);
    QAccessibleInterface* const known = of(&dialog.find(page.page));
    QCOMPARE(nameOf(known), text(page.name));
    QCOMPARE(inputsBelow(known), text(page.inputs).split(QLatin1Char('\n')));
}

void tst_AccessibleNames::windowAndGroups_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QStringList>("groups");
    QTest::addColumn<QStringList>("buttons");
    const auto groups = [](const char* system, const char* trade, const char* keys) {
        return QStringList{text(system), text(trade), text(keys)};
    };
    const auto buttons = [](const char* cancel, const char* confirm) {
        return QStringList{text("button ") + text(cancel), text("button ") + text(confirm)};
    };
    QTest::newRow("zh_CN") << text("交易客户端设置") << groups("系统设置", "交易设置", "快捷键设置")
                           << buttons("取消", "确定");
    QTest::newRow("zh_TW") << text("交易用戶端設定") << groups("系統設定", "交易設定", "快速鍵設定")
                           << buttons("取消", "確定");
    QTest::newRow("en_US") << text("Trading client settings")
                           << groups("System", "Trading", "Hotkeys") << buttons("Cancel", "OK");
}

void tst_AccessibleNames::windowAndGroups()
{
    QFETCH(QString, window);
    QFETCH(QStringList, groups);
    QFETCH(QStringList, buttons);
    const Language language{QLatin1String(QTest::currentDataTag())};
    QVERIFY(language.chosen);
    const TestDialog dialog;
    QCOMPARE(nameOf(of(dialog.get())), window);
    QWidget* const pageOf[] = {dialog->ui.page, dialog->ui.page_2, dialog->ui.page_14};
    QWidget* const listOf[]
        = {dialog->ui.widget_system, dialog->ui.widget_trade, dialog->ui.widget_shortcut};
    for (int group = 0; group < 3; ++group) {
        QCOMPARE(nameOf(of(pageOf[group])), groups.at(group));
        QCOMPARE(nameOf(of(listOf[group])), groups.at(group));
    }
    QCOMPARE(inputsBelow(of(dialog->ui.widget_2)), buttons);
}

// From the window down to each control that somebody can change or press.
void tst_AccessibleNames::theTreeLeavesOutNoInput()
{
    const TestDialog dialog;
    QStringList missing;
    int inputs = 0;
    for (QWidget* const widget : dialog->findChildren<QWidget*>()) {
        const QByteArray kind = widget->metaObject()->className();
        const QWidget* const parent = widget->parentWidget();
        const bool inside = qobject_cast<const QAbstractSpinBox*>(parent)
            || qobject_cast<const QComboBox*>(parent);
        if (inside
            || (kind != "QComboBox" && kind != "QSpinBox" && kind != "QLineEdit"
                && kind != "QCheckBox" && kind != "QPushButton" && kind != "CTableLineEdit"))
            continue;
        ++inputs;
        QAccessibleInterface* known = of(widget);
        while (known && known != of(dialog.get())) {
            QAccessibleInterface* const above = known->parent();
            const int index = above ? above->indexOfChild(known) : -1;
            known = index >= 0 && above->child(index) == known ? above : nullptr;
        }
        if (!known)
            missing << widget->objectName();
    }
    QCOMPARE(missing, QStringList());
    QCOMPARE(inputs, 19 + 1 + 9 + 6 + 4 + 28);
}

void tst_AccessibleNames::everyLabelLeadsToItsField()
{
    const TestDialog dialog;
    int fields = 0;
    for (QWidget* const widget : dialog->findChildren<QWidget*>()) {
        const QByteArray kind = widget->metaObject()->className();
        if (widget->objectName().startsWith(QLatin1String("qt_"))
            || (kind != "QComboBox" && kind != "QSpinBox" && kind != "QLineEdit"))
            continue;
        ++fields;
        const auto relations = of(widget)->relations(QAccessible::Label);
        QCOMPARE(relations.size(), 1);
        QCOMPARE(relations.first().first->role(), QAccessible::StaticText);
        QVERIFY(labelOf(of(widget)).endsWith(text("：")));
    }
    QCOMPARE(fields, 19 + 1 + 9);
}

void tst_AccessibleNames::labelsHaveNoMnemonics_data()
{
    QTest::addColumn<QString>("code");
    for (const char* const language : {"zh_CN", "zh_TW", "en_US"})
        QTest::newRow(language) << text(language);
}

// A label with a buddy would take an ampersand for a mark and show none.
void tst_AccessibleNames::labelsHaveNoMnemonics()
{
    QFETCH(QString, code);
    const Language language(code);
    QVERIFY(language.chosen);
    const TestDialog dialog;
    int labels = 0;
    for (const QLabel* const label : dialog->findChildren<QLabel*>()) {
        if (!label->buddy())
            continue;
        ++labels;
        QVERIFY2(!label->text().contains(QLatin1Char('&')), qPrintable(label->text()));
    }
    QCOMPARE(labels, 32);
}

void tst_AccessibleNames::editedProtectionPrice_data()
{
    QTest::addColumn<bool>("selling");
    QTest::addColumn<QString>("name");
    QTest::newRow("buying") << false << text("科创板买入保护价默认值最新价上浮");
    QTest::newRow("selling") << true << text("科创板卖出保护价默认值最新价上浮");
}

void tst_AccessibleNames::editedProtectionPrice()
{
    QFETCH(bool, selling);
    QFETCH(QString, name);
    const TestDialog dialog;
    const auto& ui = dialog->ui;
    (selling ? ui.pushButton_kc_sellRise : ui.pushButton_kc_buyRise)->click();
    QLineEdit* const editor
        = (selling ? ui.comboBox_trade_kc_sellRise : ui.comboBox_trade_kc_buyRise)->lineEdit();
    QVERIFY(editor);
    QCOMPARE(nameOf(of(editor)), name);
}

void tst_AccessibleNames::colons_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("Scale:") << text("Scale");
    QTest::newRow("比例：") << text("比例");
    QTest::newRow("Scale") << text("Scale");
    QTest::newRow("09:30") << text("09:30");
    QTest::newRow("(a:b):") << text("(a:b)");
    QTest::newRow(":") << QString();
    QTest::newRow("") << QString();
}

void tst_AccessibleNames::colons()
{
    QFETCH(QString, name);
    QLabel label(text(QTest::currentDataTag()));
    QLineEdit field;
    label.setBuddy(&field);
    AccessibleNames::giveFrom({&label});
    QCOMPARE(field.accessibleName(), name);
}

TRADECONFIG_TEST_MAIN(tst_AccessibleNames)
#include "tst_AccessibleNames.moc"
