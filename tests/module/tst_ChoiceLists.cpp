#include "support/BareForm.h"
#include "support/MarkingTranslator.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/dialog/ChoiceLists.h"

namespace {

struct Expected {
    const char* combo;
    const char* items; // separated by '|'
    const char* untranslated; // the same, of those that are taken as they stand
};

constexpr Expected expected[] = {
    {"comboBox_system_buy_type", "买入数量|买入金额", ""},
    {"comboBox_system_sell_type", "卖出数量|卖出金额", ""},
    {"comboBox_system_defaultView", "股票买入|股票卖出|资金股票", ""},
    {"comboBox_system_buyType", "限价买入|市价买入", ""},
    {"comboBox_system_sellType", "限价卖出|市价卖出", ""},
    {"comboBox_system_hqLink", "是|否", ""},
    {"comboBox_system_hqLink2", "是|否", ""},
    {"comboBox_system_fontSize", "正常字体|大字体|特大字体", ""},
    {"comboBox_system_language", "简体|繁體|English", "简体|繁體|English"},
    {"comboBox_trade_buyPrice", "卖一|卖二|卖三|卖四|卖五|最新价|空", ""},
    {"comboBox_trade_buyCount", "空|全仓|1/2|1/3|1/4|1/5", "1/2|1/3|1/4|1/5"},
    {"comboBox_trade_sellPrice", "买一|买二|买三|买四|买五|最新价|空", ""},
    {"comboBox_trade_sellCount", "空|全仓|1/2|1/3|1/4|1/5", "1/2|1/3|1/4|1/5"},
    {"comboBox_trade_wt", "清空|保留代码|保留代码价格|保留全部", ""},
    {"comboBox_trade_lineEdit", "光标在数字后|全选数字", ""},
    {"comboBox_trade_split", "固定数量|区间随机|数量递减", ""},
    {"comboBox_trade_kc_split", "限价委托|市价委托|盘后定价|区间随机|数量递减", ""},
};

QStringList split(const char* texts)
{
    return QString::fromUtf8(texts).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

QStringList itemsOf(const QComboBox& combo)
{
    QStringList items;
    for (int index = 0; index < combo.count(); ++index)
        items << combo.itemText(index);
    return items;
}

} // namespace

class tst_ChoiceLists : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void itemsInOrder_data();
    void itemsInOrder();
    void translatedItems_data();
    void translatedItems();
    void onlyTheSeventeen();
    void secondFillAppends();
    void dialogFillsOnce_data();
    void dialogFillsOnce();

private:
    static void rows();
};

void tst_ChoiceLists::rows()
{
    QTest::addColumn<int>("row");
    QCOMPARE(int(std::size(expected)), 17);
    for (int row = 0; row < int(std::size(expected)); ++row)
        QTest::newRow(expected[row].combo) << row;
}

void tst_ChoiceLists::itemsInOrder_data() { rows(); }

void tst_ChoiceLists::itemsInOrder()
{
    QFETCH(int, row);
    BareForm form;
    ChoiceLists::fill(form.ui);
    const QComboBox& combo = form.find<QComboBox>(expected[row].combo);
    QCOMPARE(itemsOf(combo), split(expected[row].items));
    QCOMPARE(combo.currentIndex(), 0);
    QCOMPARE(combo.currentText(), split(expected[row].items).first());
    for (int index = 0; index < combo.count(); ++index) {
        QVERIFY(!combo.itemData(index).isValid());
        QVERIFY(combo.itemIcon(index).isNull());
    }
}

void tst_ChoiceLists::translatedItems_data() { rows(); }

void tst_ChoiceLists::translatedItems()
{
    QFETCH(int, row);
    const MarkingTranslator translator;
    BareForm form;
    ChoiceLists::fill(form.ui);
    const QStringList plain = split(expected[row].untranslated);
    QStringList texts;
    for (const QString& item : split(expected[row].items))
        texts << (plain.contains(item) ? item : QStringLiteral("T:") + item);
    QCOMPARE(itemsOf(form.find<QComboBox>(expected[row].combo)), texts);
}

void tst_ChoiceLists::onlyTheSeventeen()
{
    BareForm form;
    ChoiceLists::fill(form.ui);
    QStringList empty;
    for (const QComboBox* const combo : form.widget.findChildren<QComboBox*>()) {
        if (combo->count() == 0)
            empty << combo->objectName();
    }
    empty.sort();
    QCOMPARE(empty,
             (QStringList{QStringLiteral("comboBox_trade_kc_buyRise"),
                          QStringLiteral("comboBox_trade_kc_sellRise")}));
}

void tst_ChoiceLists::secondFillAppends()
{
    BareForm form;
    ChoiceLists::fill(form.ui);
    ChoiceLists::fill(form.ui);
    QCOMPARE(itemsOf(*form.ui.comboBox_system_hqLink), split("是|否|是|否"));
    QCOMPARE(form.ui.comboBox_system_hqLink->currentIndex(), 0);
}

void tst_ChoiceLists::dialogFillsOnce_data() { rows(); }

void tst_ChoiceLists::dialogFillsOnce()
{
    QFETCH(int, row);
    const TestDialog dialog;
    QCOMPARE(itemsOf(dialog.find<QComboBox>(expected[row].combo)), split(expected[row].items));
}

TRADECONFIG_TEST_MAIN(tst_ChoiceLists)
#include "tst_ChoiceLists.moc"
