#include "support/FakeTrade.h"
#include "support/TestMain.h"
#include "tradeConfig/CTradeConfigWidget.h"

class tst_RowLabel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void glyphsFitTheRow_data();
    void glyphsFitTheRow();
    void rowsKeepTheirPlace();
    void otherLabelsStayAsTheyAre();
    void bareFormShowsItsTexts();
};

namespace {

/// Sum of what the text darkens, in levels of grey.
qint64 ink(QWidget& label)
{
    const QImage image = label.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
    const int ground = qGray(label.palette().color(QPalette::Window).rgb());
    qint64 sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += ground - qGray(image.pixel(x, y));
    }
    return sum;
}

} // namespace

void tst_RowLabel::glyphsFitTheRow_data()
{
    QTest::addColumn<QString>("name");
    FakeTrade trade;
    const CTradeConfigWidget dialog(&trade);
    for (const auto* const label : dialog.findChildren<QLabel*>()) {
        if (label->height() == 16)
            QTest::newRow(qPrintable(label->objectName())) << label->objectName();
    }
}

void tst_RowLabel::glyphsFitTheRow()
{
    QFETCH(QString, name);
    FakeTrade trade;
    CTradeConfigWidget dialog(&trade);
    auto* const label = dialog.findChild<QLabel*>(name);
    QCOMPARE(label->height(), 16);
    const qint64 shown = ink(*label);
    label->resize(label->width(), 48);
    const qint64 whole = ink(*label);
    QVERIFY(whole > 20000);
    // A rounding of a stroke's edge may stick out, a row of pixels may not.
    QVERIFY2(whole - shown <= whole / 1000,
             qPrintable(QStringLiteral("%1 of %2 shown").arg(shown).arg(whole)));
}

void tst_RowLabel::rowsKeepTheirPlace()
{
    FakeTrade trade;
    const CTradeConfigWidget dialog(&trade);
    QCOMPARE(dialog.ui.label_7->geometry().x(), 50);
    QCOMPARE(dialog.ui.label_7->geometry().height(), 16);
    QCOMPARE(dialog.ui.label->geometry(), QRect(10, 20, 91, 16));
    QCOMPARE(dialog.ui.label_7->metaObject()->className(), "QLabel");
    QCOMPARE(dialog.ui.label_7->font().family(), QStringLiteral("Arial"));
    QCOMPARE(dialog.ui.label_7->font().pointSize(), 11);
}

void tst_RowLabel::otherLabelsStayAsTheyAre()
{
    FakeTrade trade;
    const CTradeConfigWidget dialog(&trade);
    QCOMPARE(dialog.ui.label_2->contentsMargins(), QMargins(0, -6, 0, -2));
    for (const QLabel* const label :
         {dialog.ui.label_35, dialog.ui.label_33, dialog.ui.label_shortcut})
        QCOMPARE(label->contentsMargins(), QMargins());
}

void tst_RowLabel::bareFormShowsItsTexts()
{
    QWidget widget;
    Ui_CTradeConfigWidget form;
    form.setupUi(&widget);
    QCOMPARE(form.label_7->contentsMargins(), QMargins());
    QVERIFY(ink(*form.label_7) > 20000);
}

TRADECONFIG_TEST_MAIN(tst_RowLabel)
#include "tst_RowLabel.moc"
