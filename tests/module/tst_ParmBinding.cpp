#include "support/BareForm.h"
#include "support/FakeTrade.h"
#include "support/TestMain.h"
#include "tradeConfig/dialog/ChoiceLists.h"
#include "tradeConfig/dialog/ParmBinding.h"

using ParmBinding::Section;

Q_DECLARE_METATYPE(ParmBinding::Section)

/// Which controls each part of loading touches, and in what order.
class tst_ParmBinding : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sections_data();
    void sections();
};

void tst_ParmBinding::sections_data()
{
    QTest::addColumn<Section>("section");
    QTest::addColumn<QStringList>("controls");
    const auto names = [](std::initializer_list<const char*> list) {
        QStringList result;
        for (const char* const name : list)
            result << QLatin1String(name);
        return result;
    };
    QTest::newRow("order entry") << Section::OrderEntry
                                 << names(
                                        {"comboBox_system_buy_type", "comboBox_system_sell_type"});
    QTest::newRow("session") << Section::Session
                             << names({"lineEdit_system_lockTime", "comboBox_system_buyType",
                                       "comboBox_system_sellType", "comboBox_system_hqLink",
                                       "comboBox_system_hqLink2", "comboBox_system_fontSize"});
    QTest::newRow("trading") << Section::Trading
                             << names({"comboBox_trade_buyPrice", "comboBox_trade_buyCount",
                                       "comboBox_trade_sellPrice", "comboBox_trade_sellCount",
                                       "comboBox_trade_wt", "checkBox_trade_pk",
                                       "comboBox_trade_lineEdit", "checkBox_trade_cancle",
                                       "checkBox_trade_wt", "checkBox_trade_wtDlg"});
}

void tst_ParmBinding::sections()
{
    QFETCH(Section, section);
    QFETCH(QStringList, controls);

    const BareForm form;
    ChoiceLists::fill(form.ui);
    QStringList changed;
    const auto note = [&changed](const QObject* control) { changed << control->objectName(); };
    for (auto* const combo : form.widget.findChildren<QComboBox*>())
        connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                [=] { note(combo); });
    for (auto* const box : form.widget.findChildren<QCheckBox*>())
        connect(box, &QCheckBox::toggled, this, [=] { note(box); });
    for (auto* const edit : form.widget.findChildren<QLineEdit*>())
        connect(edit, &QLineEdit::textChanged, this, [=] { note(edit); });

    // A value in every field that the form does not show by itself.
    FakeTrade trade;
    TradeParm& parm = trade.parm();
    for (const auto field : {&TradeParm::buyInputType,      &TradeParm::sellInputType,
                             &TradeParm::lockMinutes,       &TradeParm::defaultBuyMode,
                             &TradeParm::defaultSellMode,   &TradeParm::quoteFollowsOrder,
                             &TradeParm::orderFollowsQuote, &TradeParm::fontSizeLevel,
                             &TradeParm::languageIndex,     &TradeParm::defaultBuyPrice,
                             &TradeParm::defaultBuyQty,     &TradeParm::defaultSellPrice,
                             &TradeParm::defaultSellQty,    &TradeParm::afterOrderForm,
                             &TradeParm::clickBookQty,      &TradeParm::inputBoxState,
                             &TradeParm::confirmCancel,     &TradeParm::confirmOrder,
                             &TradeParm::splitEnabled,      &TradeParm::starSplitEnabled,
                             &TradeParm::splitStrategy,     &TradeParm::starSplitStrategy,
                             &TradeParm::orderSuccessDialog})
        parm.*field = 1;
    ParmBinding::load(section, parm, form.ui);
    QCOMPARE(changed, controls);
}

TRADECONFIG_TEST_MAIN(tst_ParmBinding)
#include "tst_ParmBinding.moc"
