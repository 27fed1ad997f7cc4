#include "support/TestMain.h"
#include "tradeConfig/WrapLabel.h"

#include <QImage>

namespace {

int widestLine(const QWidget& widget) { return 80 * widget.fontMetrics().averageCharWidth(); }

} // namespace

class tst_WrapLabel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isAPlainLabelForOrdinaryText_data();
    void isAPlainLabelForOrdinaryText();
    void breaksAWordThatIsTooWide();
    void breaksOnlyWhatDoesNotFit();
    void takesThePaletteColour();
    void goesBackToAPlainLabel();
};

void tst_WrapLabel::isAPlainLabelForOrdinaryText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("short") << QStringLiteral("保存成功");
    QTest::newRow("lines") << QStringLiteral("一\n二\n\n三");
    QTest::newRow("long") << QStringLiteral("数量不能大于上限，").repeated(40);
    QTest::newRow("tags") << QStringLiteral("<b>a</b> &amp; b");
}

void tst_WrapLabel::isAPlainLabelForOrdinaryText()
{
    QFETCH(QString, text);
    CWrapLabel label(nullptr);
    label.setText(text);
    QLabel plain;
    plain.setTextFormat(Qt::PlainText);
    plain.setWordWrap(true);
    plain.setText(text);
    QCOMPARE(label.sizeHint(), plain.sizeHint());
    QCOMPARE(label.minimumSizeHint(), plain.minimumSizeHint());
    for (const int width : {50, 200, 640}) {
        QCOMPARE(label.heightForWidth(width), plain.heightForWidth(width));
        label.resize(width, 100);
        plain.resize(width, 100);
        QCOMPARE(label.grab().toImage(), plain.grab().toImage());
    }
}

void tst_WrapLabel::breaksAWordThatIsTooWide()
{
    CWrapLabel label(nullptr);
    const QString word(500, QLatin1Char('8'));
    label.setText(word);
    QCOMPARE(label.text(), word);
    const int line = label.fontMetrics().height();
    const int whole = label.fontMetrics().horizontalAdvance(word);
    const int widest = widestLine(label);
    QVERIFY(whole > 4 * widest);
    QCOMPARE(label.sizeHint().width(), widest);
    QCOMPARE(label.minimumSizeHint(), label.sizeHint());
    const int lines = label.sizeHint().height() / line;
    QVERIFY(lines >= whole / widest && lines <= whole / widest + 2);
    QVERIFY(label.heightForWidth(2 * widest) < label.heightForWidth(widest));
    QVERIFY(label.heightForWidth(widest / 2) > label.heightForWidth(widest));
}

void tst_WrapLabel::breaksOnlyWhatDoesNotFit()
{
    // The short words stay whole: the line before the wide word ends where it begins.
    CWrapLabel label(nullptr);
    const QString word(300, QLatin1Char('8'));
    label.setText(QStringLiteral("ab ") + word);
    const int line = label.fontMetrics().height();
    label.resize(label.sizeHint());
    const QImage image = label.grab().toImage();
    const QRgb paper = image.pixel(image.width() - 1, image.height() - 1);
    int right = 0;
    for (int y = 0; y < line; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != paper)
                right = qMax(right, x);
        }
    }
    QVERIFY(right > 0 && right <= label.fontMetrics().horizontalAdvance(QStringLiteral("ab ")));
}

void tst_WrapLabel::takesThePaletteColour()
{
    CWrapLabel label(nullptr);
    label.setText(QString(500, QChar(0x2588)));
    QPalette palette;
    palette.setColor(QPalette::WindowText, QColor(210, 40, 70));
    palette.setColor(QPalette::Text, Qt::green);
    label.setPalette(palette);
    label.resize(label.sizeHint());
    const QImage image = label.grab().toImage();
    QCOMPARE(image.pixelColor(image.width() / 2, label.fontMetrics().height() / 2),
             QColor(210, 40, 70));
}

void tst_WrapLabel::goesBackToAPlainLabel()
{
    CWrapLabel label(nullptr);
    label.setText(QString(500, QLatin1Char('8')));
    const QSize wide = label.sizeHint();
    label.setText(QStringLiteral("8"));
    QVERIFY(label.sizeHint().width() < wide.width());
    QCOMPARE(label.sizeHint(), label.QLabel::sizeHint());
}

TRADECONFIG_TEST_MAIN(tst_WrapLabel)
#include "tst_WrapLabel.moc"
