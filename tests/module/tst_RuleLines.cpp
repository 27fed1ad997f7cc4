#include "support/Contrast.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "support/TextInk.h"

#include <QStyleFactory>

class tst_RuleLines : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyRuleIsSeen_data();
    void everyRuleIsSeen();
    void rulesStayTheForms();
    void paletteOfTheMomentCounts();
};

namespace {

/// The lines of device pixels that @p rule takes in @p image, and how much they stand out.
struct Seen {
    int thickness = 0;
    double contrast = 1.0;
};

Seen seenIn(const QImage& image, const QPoint& corner, int width)
{
    const double scale = image.devicePixelRatio();
    const int middle = int((corner.x() + width / 2) * scale);
    const QColor ground = image.pixelColor(middle, int((corner.y() - 4) * scale));
    Seen seen;
    for (int y = int((corner.y() - 3) * scale); y < int((corner.y() + 4) * scale); ++y) {
        const double here = contrast(image.pixelColor(middle, y), ground);
        seen.thickness += here > 1.05 ? 1 : 0;
        seen.contrast = qMax(seen.contrast, here);
    }
    return seen;
}

void showPageOf(const CTradeConfigWidget& dialog, QWidget& widget)
{
    for (QWidget* page = &widget; page != &dialog; page = page->parentWidget()) {
        if (auto* const stack = qobject_cast<QStackedWidget*>(page->parentWidget()))
            stack->setCurrentWidget(page);
    }
    QCoreApplication::processEvents();
}

} // namespace

void tst_RuleLines::everyRuleIsSeen_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QPalette>("palette");
    const QPalette standard = QStyleFactory::create(QStringLiteral("Fusion"))->standardPalette();
    const QPalette night(QColor(60, 60, 60), QColor(40, 40, 40));
    for (const char* const style : {"Fusion", "Windows"}) {
        QTest::addRow("%s", style) << QString::fromLatin1(style) << standard;
        QTest::addRow("%s, dark desktop", style) << QString::fromLatin1(style) << night;
    }
}

void tst_RuleLines::everyRuleIsSeen()
{
    QFETCH(const QString, style);
    QFETCH(const QPalette, palette);
    QApplication::setStyle(QStyleFactory::create(style));
    QApplication::setPalette(palette);
    const TestDialog dialog;
    dialog->show();
    int count = 0;
    for (auto* const line : dialog->findChildren<QFrame*>()) {
        if (line->frameShape() != QFrame::HLine)
            continue;
        showPageOf(*dialog, *line);
        if (!line->isVisible())
            continue;
        const QPoint corner = line->mapTo(dialog.get(), QPoint());
        for (const int percent : {100, 125, 150, 175, 200, 300}) {
            const double scale = percent / 100.0;
            const Seen seen = seenIn(renderedAt(*dialog, scale), corner, line->width());
            const QString where = QStringLiteral("%1 at %2 %: %3, %4")
                                      .arg(line->objectName())
                                      .arg(percent)
                                      .arg(seen.thickness)
                                      .arg(seen.contrast);
            QVERIFY2(seen.contrast >= 1.4, qPrintable(where));
            QVERIFY2(seen.thickness >= int(scale), qPrintable(where));
            QVERIFY2(seen.thickness <= scale + 1.0, qPrintable(where));
        }
        ++count;
    }
    // All but the hidden one.
    QCOMPARE(count, 17);
}

void tst_RuleLines::rulesStayTheForms()
{
    const TestDialog dialog;
    int count = 0;
    for (const auto* const line : dialog->findChildren<QFrame*>()) {
        if (!line->objectName().startsWith(QStringLiteral("line_")))
            continue;
        QCOMPARE(line->frameShape(), QFrame::HLine);
        QCOMPARE(line->frameShadow(), QFrame::Sunken);
        QCOMPARE(line->metaObject()->className(), "QFrame");
        ++count;
    }
    QCOMPARE(count, 18);
}

void tst_RuleLines::paletteOfTheMomentCounts()
{
    const TestDialog dialog;
    dialog->show();
    QFrame& line = *dialog->ui.line_2;
    for (const QColor& window : {QColor(250, 250, 250), QColor(20, 20, 20)}) {
        QPalette palette(window);
        dialog->setPalette(palette);
        const QColor colour = line.grab().toImage().pixelColor(200, 0);
        QVERIFY2(contrast(colour, window) >= 1.4, qPrintable(colour.name()));
    }
}

TRADECONFIG_TEST_MAIN(tst_RuleLines)
#include "tst_RuleLines.moc"
