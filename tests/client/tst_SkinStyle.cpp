#include "appearance/SkinStyle.h"
#include "libskin/SkinLibrary.h"
#include "support/Contrast.h"
#include "support/TestMain.h"
#include "support/TextInk.h"

#include <QCheckBox>
#include <QFrame>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QStyleOptionSlider>

#include <cmath>

using CorvelSkin::SkinLibrary;

namespace {

QRect partOf(const QScrollBar& bar, QStyle::SubControl part)
{
    QStyleOptionSlider option;
    bar.initStyleOption(&option);
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
}

} // namespace

class tst_SkinStyle : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void thumbStandsOutFromGroove_data();
    void thumbStandsOutFromGroove();
    void arrowsPointOutwards_data();
    void arrowsPointOutwards();
    void nothingToScrollHasNoThumb();
    void thumbAnswersThePointer();
    void emptyBoxHasAnOutline_data();
    void emptyBoxHasAnOutline();
    void focusIsShownOnTheBox();
    void lineIsSeenAtEveryScale_data();
    void lineIsSeenAtEveryScale();
    void rowOfATableIsOneLine_data();
    void rowOfATableIsOneLine();
};

void tst_SkinStyle::initTestCase() { QApplication::setStyle(new SkinStyle); }

void tst_SkinStyle::init()
{
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("light")));
    QApplication::setPalette(SkinLibrary::instance()->palette());
}

void tst_SkinStyle::thumbStandsOutFromGroove_data()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<int>("orientation");
    for (const char* const skin : {"light", "dark"}) {
        QTest::addRow("%s, upright", skin) << QString::fromLatin1(skin) << int(Qt::Vertical);
        QTest::addRow("%s, lying", skin) << QString::fromLatin1(skin) << int(Qt::Horizontal);
    }
}

void tst_SkinStyle::thumbStandsOutFromGroove()
{
    QFETCH(const QString, skin);
    QFETCH(const int, orientation);
    QVERIFY(SkinLibrary::instance()->load(skin));
    QApplication::setPalette(SkinLibrary::instance()->palette());
    QScrollBar bar{Qt::Orientation(orientation)};
    bar.setRange(0, 100);
    bar.setPageStep(50);
    bar.resize(orientation == Qt::Vertical ? QSize(14, 300) : QSize(300, 14));
    const QImage image = bar.grab().toImage();
    const QColor thumb = image.pixelColor(partOf(bar, QStyle::SC_ScrollBarSlider).center());
    const QColor groove = image.pixelColor(partOf(bar, QStyle::SC_ScrollBarAddPage).center());
    const QColor window = SkinLibrary::instance()->palette().color(QPalette::Window);
    // The thumb is the part that differs from the window; the groove hardly does.
    QVERIFY2(contrast(thumb, groove) >= 1.6, qPrintable(thumb.name() + groove.name()));
    QVERIFY2(contrast(groove, window) <= 1.2, qPrintable(groove.name()));
    QCOMPARE(luminance(thumb) < luminance(groove), skin == QLatin1String("light"));
}

void tst_SkinStyle::arrowsPointOutwards_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("rightToLeft");
    QTest::newRow("upright") << int(Qt::Vertical) << false;
    QTest::newRow("lying") << int(Qt::Horizontal) << false;
    QTest::newRow("lying, right to left") << int(Qt::Horizontal) << true;
}

void tst_SkinStyle::arrowsPointOutwards()
{
    QFETCH(const int, orientation);
    QFETCH(const bool, rightToLeft);
    const bool upright = orientation == Qt::Vertical;
    QScrollBar bar{Qt::Orientation(orientation)};
    bar.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    bar.setRange(0, 100);
    bar.resize(upright ? QSize(14, 300) : QSize(300, 14));
    QImage image = bar.grab().toImage();
    if (!upright)
        image = image.transformed(QTransform(0, 1, 1, 0, 0, 0));
    // An arrow is widest on its inner side.
    const auto inkOf = [&image](int line) {
        int count = 0;
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, line) != image.pixelColor(0, line) ? 1 : 0;
        return count;
    };
    int first = 0;
    while (first < 14 && inkOf(first) == 0)
        ++first;
    int last = image.height() - 1;
    while (last > image.height() - 14 && inkOf(last) == 0)
        --last;
    QVERIFY(inkOf(first) > 0 && inkOf(first) < inkOf(first + 2));
    QVERIFY(inkOf(last) > 0 && inkOf(last) < inkOf(last - 2));
}

void tst_SkinStyle::nothingToScrollHasNoThumb()
{
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, 0);
    bar.resize(14, 300);
    const QImage image = bar.grab().toImage();
    QCOMPARE(image.copy(0, 20, 14, 260), [&] {
        QImage plain = image.copy(0, 20, 14, 260);
        plain.fill(image.pixelColor(0, 150));
        return plain;
    }());
}

void tst_SkinStyle::thumbAnswersThePointer()
{
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, 100);
    bar.resize(14, 300);
    const auto thumb = [&bar](QStyle::State state) {
        QStyleOptionSlider option;
        bar.initStyleOption(&option);
        option.state |= state;
        option.activeSubControls = QStyle::SC_ScrollBarSlider;
        QImage image(bar.size(), QImage::Format_RGB32);
        QPainter painter(&image);
        bar.style()->drawComplexControl(QStyle::CC_ScrollBar, &option, &painter, &bar);
        return luminance(image.pixelColor(partOf(bar, QStyle::SC_ScrollBarSlider).center()));
    };
    const double idle = thumb(QStyle::State_None);
    const double hovered = thumb(QStyle::State_MouseOver);
    const double pressed = thumb(QStyle::State_MouseOver | QStyle::State_Sunken);
    QVERIFY(idle > hovered);
    QVERIFY(hovered > pressed);
}

void tst_SkinStyle::emptyBoxHasAnOutline_data()
{
    QTest::addColumn<QString>("skin");
    for (const char* const skin : {"light", "dark"})
        QTest::newRow(skin) << QString::fromLatin1(skin);
}

void tst_SkinStyle::emptyBoxHasAnOutline()
{
    QFETCH(const QString, skin);
    QVERIFY(SkinLibrary::instance()->load(skin));
    QApplication::setPalette(SkinLibrary::instance()->palette());
    QCheckBox box;
    box.setAutoFillBackground(true);
    box.resize(100, 30);
    QStyleOptionButton option;
    box.initStyleOption(&option);
    const QRect square = box.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
    const QImage image = box.grab().toImage();
    const QColor window = SkinLibrary::instance()->palette().color(QPalette::Window);
    for (const QPoint& edge :
         {QPoint(square.left(), square.center().y()), QPoint(square.right(), square.center().y()),
          QPoint(square.center().x(), square.top()),
          QPoint(square.center().x(), square.bottom())}) {
        const QColor outline = image.pixelColor(edge);
        QVERIFY2(contrast(outline, window) >= 3.0, qPrintable(outline.name()));
        QVERIFY2(contrast(outline, image.pixelColor(square.center())) >= 3.0,
                 qPrintable(outline.name()));
    }
}

void tst_SkinStyle::focusIsShownOnTheBox()
{
    const auto edge = [](QStyle::State state) {
        QStyleOptionButton option;
        option.rect = QRect(0, 0, 13, 13);
        option.palette = QApplication::palette();
        option.state = QStyle::State_Enabled | state;
        QImage image(13, 13, QImage::Format_RGB32);
        image.fill(option.palette.color(QPalette::Window));
        QPainter painter(&image);
        QApplication::style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
        painter.end();
        return image.pixelColor(0, 6);
    };
    const QColor plain = edge(QStyle::State_None);
    QCOMPARE(edge(QStyle::State_HasFocus), plain);
    QVERIFY(edge(QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange) != plain);
}

void tst_SkinStyle::lineIsSeenAtEveryScale_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("shape");
    for (const int percent : {100, 125, 150, 175, 200}) {
        QTest::addRow("lying, %d", percent) << percent / 100.0 << int(QFrame::HLine);
        QTest::addRow("upright, %d", percent) << percent / 100.0 << int(QFrame::VLine);
    }
}

void tst_SkinStyle::lineIsSeenAtEveryScale()
{
    QFETCH(const double, scale);
    QFETCH(const int, shape);
    const bool lying = shape == QFrame::HLine;
    QWidget window;
    window.resize(40, 40);
    // As thin as the dialog's, at every place on the grid of device pixels.
    for (int place = 0; place < 4; ++place) {
        auto* const line = new QFrame(&window);
        line->setFrameShape(QFrame::Shape(shape));
        line->setFrameShadow(QFrame::Sunken);
        const int at = 3 + 9 * place;
        line->setGeometry(lying ? QRect(0, at, 40, 1) : QRect(at, 0, 1, 40));
    }
    QImage image((QSizeF(window.size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    window.render(&image);
    const QColor ground = image.pixelColor(0, 0);
    int lines = 0;
    bool wasLine = false;
    const int middle = image.width() / 2;
    for (int i = 0; i < image.width(); ++i) {
        const QColor colour = lying ? image.pixelColor(middle, i) : image.pixelColor(i, middle);
        const bool isLine = contrast(colour, ground) >= 1.25;
        lines += isLine && !wasLine ? 1 : 0;
        wasLine = isLine;
    }
    QCOMPARE(lines, 4);
}

void tst_SkinStyle::rowOfATableIsOneLine_data()
{
    QTest::addColumn<int>("pixelSize");
    for (const int size : {12, 13, 14, 15, 16, 18, 20, 24})
        QTest::addRow("%d", size) << size;
}

// Capitals and ideographs have their middles at the same height, whichever font they come from.
void tst_SkinStyle::rowOfATableIsOneLine()
{
    QFETCH(const int, pixelSize);
    QTableWidget table(1, 2);
    QFont font = table.font();
    font.setPixelSize(pixelSize);
    table.setFont(font);
    table.setShowGrid(false);
    table.setRowHeight(0, 2 * pixelSize);
    table.setItem(0, 0, new QTableWidgetItem(QStringLiteral("默认买入")));
    table.setItem(0, 1, new QTableWidgetItem(QStringLiteral("HEX500")));
    table.resize(400, 200);
    const QImage image = renderedAt(*table.viewport(), 1.0);
    const QRect chinese = textInk(image, table.visualItemRect(table.item(0, 0))).box;
    const QRect latin = textInk(image, table.visualItemRect(table.item(0, 1))).box;
    const auto middle = [](const QRect& box) { return box.top() + box.height() / 2.0; };
    QVERIFY2(std::abs(middle(chinese) - middle(latin)) <= 1.0,
             qPrintable(QStringLiteral("%1 and %2").arg(middle(chinese)).arg(middle(latin))));
    // Both in the middle of the row.
    QVERIFY2(std::abs(middle(latin) - pixelSize) <= 1.0,
             qPrintable(QString::number(middle(latin))));
}

TRADECONFIG_TEST_MAIN(tst_SkinStyle)
#include "tst_SkinStyle.moc"
