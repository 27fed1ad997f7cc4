#include "support/FakeTrade.h"
#include "support/TestMain.h"
#include "support/TextInk.h"
#include "tradeConfig/CTradeConfigWidget.h"
#include "tradeConfig/dialog/RowLabels.h"

#include <QStyle>
#include <QTranslator>

namespace {

constexpr int percents[] = {100, 125, 150, 175, 200, 300};

QVector<QLabel*> rowLabels(const QWidget& dialog)
{
    QVector<QLabel*> labels;
    for (auto* const label : dialog.findChildren<QLabel*>()) {
        if (label->height() == 16)
            labels << label;
    }
    return labels;
}

} // namespace

/// The toolkit's own style draws here, which knows nothing of the rows.
class tst_RowLabel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void glyphsFitTheRow_data();
    void glyphsFitTheRow();
    void rowsKeepTheirPlace();
    void onlyTheirLowerEdgeMoves();
    void linesThatFitStayAsTheyAre();
    void styleThatCentresGlyphsIsLeftAlone();
    void bareFormShowsItsTexts();
};

void tst_RowLabel::glyphsFitTheRow_data()
{
    QTest::addColumn<QString>("language");
    for (const char* const language : {"zh_CN", "zh_TW", "en_US"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

void tst_RowLabel::glyphsFitTheRow()
{
    QFETCH(const QString, language);
    QTranslator translator;
    if (language != QLatin1String("zh_CN")) {
        QVERIFY(translator.load(QStringLiteral("tradeConfig_") + language,
                                QStringLiteral(":/translations")));
        QVERIFY(QCoreApplication::installTranslator(&translator));
    }
    FakeTrade trade;
    CTradeConfigWidget dialog(&trade);
    const QVector<QLabel*> labels = rowLabels(dialog);
    QCOMPARE(labels.size(), 28);
    for (QLabel* const label : labels) {
        for (const int percent : percents) {
            const auto ink = [&](int height) {
                label->resize(label->width(), height);
                return textInk(renderedAt(*label, percent / 100.0), label->rect()).sum;
            };
            const qint64 whole = ink(48);
            const qint64 shown = ink(16);
            QVERIFY(whole > 8000);
            // The softened edge of a stroke may stick out, a line of pixels may not.
            QVERIFY2(double(whole - shown) <= 0.003 * double(whole),
                     qPrintable(QStringLiteral("%1 at %2 %: %3 of %4")
                                    .arg(label->objectName())
                                    .arg(percent)
                                    .arg(shown)
                                    .arg(whole)));
        }
    }
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

void tst_RowLabel::onlyTheirLowerEdgeMoves()
{
    FakeTrade trade;
    const CTradeConfigWidget dialog(&trade);
    for (const QLabel* const label : rowLabels(dialog)) {
        QCOMPARE(label->contentsMargins(), QMargins(0, -2, 0, -2));
        QCOMPARE(label->alignment(), Qt::Alignment(Qt::AlignLeading | Qt::AlignBottom));
    }
    for (const QLabel* const label :
         {dialog.ui.label_35, dialog.ui.label_33, dialog.ui.label_shortcut}) {
        QCOMPARE(label->contentsMargins(), QMargins());
        QCOMPARE(label->alignment(), Qt::Alignment(Qt::AlignLeading | Qt::AlignVCenter));
    }
}

/// As where a point is a pixel.
void tst_RowLabel::linesThatFitStayAsTheyAre()
{
    QWidget page;
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(11);
    page.setFont(font);
    QLabel label(QStringLiteral("默认"), &page);
    label.resize(100, 16);
    RowLabels::fit({&page});
    QCOMPARE(label.contentsMargins(), QMargins());
    QCOMPARE(label.alignment(), Qt::Alignment(Qt::AlignLeading | Qt::AlignVCenter));
    font.setPixelSize(15);
    page.setFont(font);
    RowLabels::fit({&page});
    QVERIFY(label.contentsMargins() != QMargins());
}

void tst_RowLabel::styleThatCentresGlyphsIsLeftAlone()
{
    QStyle* const style = QApplication::style();
    style->setProperty("centresGlyphs", true);
    FakeTrade trade;
    const CTradeConfigWidget dialog(&trade);
    style->setProperty("centresGlyphs", QVariant());
    for (const QLabel* const label : rowLabels(dialog)) {
        QCOMPARE(label->contentsMargins(), QMargins());
        QCOMPARE(label->alignment(), Qt::Alignment(Qt::AlignLeading | Qt::AlignVCenter));
    }
}

void tst_RowLabel::bareFormShowsItsTexts()
{
    QWidget widget;
    Ui_CTradeConfigWidget form;
    form.setupUi(&widget);
    QCOMPARE(form.label_7->contentsMargins(), QMargins());
    QVERIFY(textInk(renderedAt(*form.label_7, 1.0), form.label_7->rect()).sum > 20000);
}

TRADECONFIG_TEST_MAIN(tst_RowLabel)
#include "tst_RowLabel.moc"
