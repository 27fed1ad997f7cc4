#include "libskin/SkinLibrary.h"
#include "support/ShownBar.h"
#include "support/TemporarySkin.h"
#include "support/TestMain.h"
#include "tradeConfig/MessageBox.h"
#include "tradeConfig/NavWidget.h"
#include "tradeConfig/skin/CSkin.h"

#include <QPainter>

#include <cmath>
#include <memory>

using CorvelSkin::CSkin;
using CorvelSkin::SkinLibrary;

namespace {

constexpr int percents[] = {125, 150, 175, 200, 225, 300};

// Of its own for each edge that is looked for; no other part of the skin has these colours.
const QColor outlineColour(255, 0, 255);
const QColor selectionColour(0, 255, 0);

QImage rendered(QWidget& window, double scale)
{
    QImage image((QSizeF(window.size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    window.render(&image);
    return image;
}

/// Pixels of one colour side by side.
struct Run {
    QColor colour;
    int begin;
    int end;
    int length() const { return end - begin; }
};

bool isEdge(const QColor& colour) { return colour == outlineColour || colour == selectionColour; }

/// The edges that a line through @p image crosses, which lies at @p at device pixels. What touches
/// at 100 % may be part of a pixel apart at a scale between whole numbers.
QVector<Run> edgesAlong(const QImage& image, Qt::Orientation direction, int at)
{
    const double scale = image.devicePixelRatio();
    const int gap = int(std::ceil(scale) - std::floor(scale));
    const bool lying = direction == Qt::Horizontal;
    const int length = lying ? image.width() : image.height();
    QVector<Run> runs;
    for (int i = 0; i < length; ++i) {
        const QColor colour = lying ? image.pixelColor(i, at) : image.pixelColor(at, i);
        if (!isEdge(colour))
            continue;
        if (!runs.isEmpty() && runs.last().end + gap >= i && runs.last().colour == colour)
            runs.last().end = i + 1;
        else
            runs += {colour, i, i + 1};
    }
    return runs;
}

QString textOf(const QVector<Run>& runs)
{
    QString text;
    for (const Run& run : runs)
        text += QString::asprintf("%d-%d%s ", run.begin, run.end,
                                  run.colour == selectionColour ? "s" : "");
    return text;
}

/// Outlines of rectangles at every place on the grid of device pixels.
class Outlined : public QWidget {
public:
    explicit Outlined(QWidget* parent)
        : QWidget(parent)
    {
    }
    QRectF outline;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        CSkin::Instance()->drawRect(painter, outline, QStringLiteral("SwitchBorder"), Qt::SolidLine,
                                    1.0);
    }
};

} // namespace

class tst_SkinOutline : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void allFourEdges_data();
    void allFourEdges();
    void edgeBeyondTheWidgetIsNotDrawn();
    void barsKeepTheirEdges_data();
    void barsKeepTheirEdges();
    void barHasEqualEdges_data();
    void barHasEqualEdges();
    void messageBoxHasEqualEdges_data();
    void messageBoxHasEqualEdges();
    void navigationListKeepsItsBands_data();
    void navigationListKeepsItsBands();

private:
    TemporarySkin m_skin;
};

void tst_SkinOutline::initTestCase()
{
    for (const char* const key : {"SwitchBorder", "NavSwitchBorder", "PopupBorder"})
        m_skin.set(QStringLiteral("colours"), QLatin1String(key), outlineColour.name());
    m_skin.set(QStringLiteral("colours"), QStringLiteral("SwitchSelLine"), selectionColour.name());
    QVERIFY(SkinLibrary::instance()->load(m_skin.folder()));
    QCOMPARE(SkinLibrary::instance()->problems().size(), 0);
}

static void addScales()
{
    for (const int percent : percents)
        QTest::addRow("%d %%", percent) << percent / 100.0;
}

void tst_SkinOutline::allFourEdges_data()
{
    QTest::addColumn<double>("scale");
    addScales();
}

void tst_SkinOutline::allFourEdges()
{
    QFETCH(const double, scale);
    QWidget window;
    window.resize(90, 90);
    Outlined inner(&window);
    const int thickness = int(scale);
    const QVector<QRectF> rects{QRectF(0, 0, 60, 50),        QRectF(0, 0, 59, 49),
                                QRectF(1, 1, 57, 47),        QRectF(7, 4, 30, 21),
                                QRectF(6.5, 3.25, 20.5, 12), QRectF(30, 20, -9, -8)};
    for (int place = 0; place < 16; ++place) {
        inner.setGeometry(5 + place % 4, 7 + place / 4, 60, 50);
        for (const QRectF& rect : rects) {
            inner.outline = rect;
            const QImage image = rendered(window, scale);
            const QRectF area = rect.normalized().translated(inner.pos());
            const QPoint middle = (area.center() * scale).toPoint();
            for (const Qt::Orientation direction : {Qt::Horizontal, Qt::Vertical}) {
                const bool lying = direction == Qt::Horizontal;
                const QVector<Run> edges
                    = edgesAlong(image, direction, lying ? middle.y() : middle.x());
                const auto where = textOf(edges) + QString::asprintf("at place %d", place);
                QVERIFY2(edges.size() == 2, qPrintable(where));
                QCOMPARE(edges.first().length(), thickness);
                QCOMPARE(edges.last().length(), thickness);
                const double from = (lying ? area.left() : area.top()) * scale;
                const double to = ((lying ? area.right() : area.bottom()) + 1) * scale;
                QVERIFY2(std::abs(edges.first().begin - from) <= 1.0, qPrintable(where));
                // The pixel after the widget's last is drawn on the last.
                QVERIFY2(edges.last().end - to <= 1.0, qPrintable(where));
                QVERIFY2(to - edges.last().end <= 1.0 + scale, qPrintable(where));
            }
        }
    }
}

void tst_SkinOutline::edgeBeyondTheWidgetIsNotDrawn()
{
    QWidget window;
    window.resize(90, 90);
    Outlined inner(&window);
    inner.setGeometry(5, 7, 60, 50);
    inner.outline = QRectF(-4, 10, 80, 20);
    for (const int percent : percents) {
        const QImage image = rendered(window, percent / 100.0);
        const int middle = (7 + 20) * percent / 100;
        QCOMPARE(textOf(edgesAlong(image, Qt::Horizontal, middle)), QString());
        QCOMPARE(edgesAlong(image, Qt::Vertical, 40 * percent / 100).size(), 2);
    }
}

void tst_SkinOutline::barsKeepTheirEdges_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("scrolled");
    for (int mode = CSwitchEx::ModeSwitch; mode <= CSwitchEx::ModeNavButton; ++mode) {
        for (const bool scrolled : {false, true}) {
            QTest::addRow("mode %d, lying%s", mode, scrolled ? ", scrolled" : "")
                << mode << int(Qt::Horizontal) << scrolled;
            QTest::addRow("mode %d, upright%s", mode, scrolled ? ", scrolled" : "")
                << mode << int(Qt::Vertical) << scrolled;
        }
    }
}

/// Every edge that is seen at 100 % is seen at every other scale, as thick.
void tst_SkinOutline::barsKeepTheirEdges()
{
    QFETCH(const int, mode);
    QFETCH(const int, orientation);
    QFETCH(const bool, scrolled);
    const bool lying = orientation == Qt::Horizontal;
    const int length = scrolled ? 220 : 390;
    ShownBar bar(Qt::Orientation(orientation), lying ? QSize(length, 37) : QSize(85, length));
    bar.move(3, 5);
    bar.changeMode(CSwitchEx::SwitchMode(mode));
    bar.SetPadding(lying ? QMarginsF() : QMarginsF(0, 0, 1, 0));
    bar.setItemSize(61);
    for (const char* const label : {"one", "two", "three"})
        bar.AddNormalSwitch(QLatin1String(label), {}, false, nullptr);
    bar.AddSeparator(1, false);
    bar.AddNormalSwitch(QStringLiteral("end"), {}, true, nullptr);
    bar.AddSeparator(2, true);
    bar.SetCurSel(bar.items.at(1), false);
    QCOMPARE(bar.moreShown, scrolled && mode != CSwitchEx::ModeSwitch);

    QWidget& window = bar.shownParent;
    const QImage plain = rendered(window, 1.0);
    QVector<QPoint> places; // beside the texts
    for (const SwitchItem* const item : bar.items + bar.endItems)
        places += (item->rect.topLeft() + QPointF(bar.pos()) + QPointF(4.5, 4.5)).toPoint();
    int crossed = 0;
    for (const int percent : percents) {
        const double scale = percent / 100.0;
        const QImage image = rendered(window, scale);
        for (const QPoint& place : qAsConst(places)) {
            for (const Qt::Orientation direction : {Qt::Horizontal, Qt::Vertical}) {
                const int at = direction == Qt::Horizontal ? place.y() : place.x();
                const QVector<Run> expected = edgesAlong(plain, direction, at);
                const QVector<Run> actual = edgesAlong(image, direction, int((at + 0.5) * scale));
                const QString where = textOf(expected)
                    + QString::asprintf("became at %d %%: ", percent) + textOf(actual);
                QVERIFY2(actual.size() == expected.size(), qPrintable(where));
                for (int i = 0; i < expected.size(); ++i) {
                    QCOMPARE(actual.at(i).colour, expected.at(i).colour);
                    QVERIFY2(std::abs(actual.at(i).begin - expected.at(i).begin * scale) <= scale,
                             qPrintable(where));
                    const int before = expected.at(i).length();
                    const double most = before == 1 ? scale + 1.0 : (before + 1) * scale;
                    QVERIFY2(actual.at(i).length() >= before * int(scale), qPrintable(where));
                    QVERIFY2(actual.at(i).length() <= most, qPrintable(where));
                    ++crossed;
                }
            }
        }
    }
    QVERIFY(crossed > 0);
}

void tst_SkinOutline::barHasEqualEdges_data() { barsKeepTheirEdges_data(); }

void tst_SkinOutline::barHasEqualEdges()
{
    QFETCH(const int, mode);
    QFETCH(const int, orientation);
    QFETCH(const bool, scrolled);
    if (scrolled)
        return; // The outline is the same.
    const bool lying = orientation == Qt::Horizontal;
    for (const QSize& size : {QSize(201, 37), QSize(200, 36), QSize(203, 60)}) {
        ShownBar bar(Qt::Orientation(orientation), lying ? size : size.transposed());
        bar.changeMode(CSwitchEx::SwitchMode(mode));
        for (int place = 0; place < 16; ++place) {
            bar.move(3 + place % 4, 5 + place / 4);
            for (const int percent : percents) {
                const double scale = percent / 100.0;
                const QImage image = rendered(bar.shownParent, scale);
                const QPoint middle = (QPointF(bar.geometry().center()) * scale).toPoint();
                for (const Qt::Orientation direction : {Qt::Horizontal, Qt::Vertical}) {
                    const QVector<Run> edges = edgesAlong(
                        image, direction, direction == Qt::Horizontal ? middle.y() : middle.x());
                    QCOMPARE(edges.size(), mode == CSwitchEx::ModeImageButton ? 0 : 2);
                    for (const Run& edge : edges)
                        QCOMPARE(edge.length(), int(scale));
                }
            }
        }
    }
}

void tst_SkinOutline::messageBoxHasEqualEdges_data() { allFourEdges_data(); }

void tst_SkinOutline::messageBoxHasEqualEdges()
{
    QFETCH(const double, scale);
    CMessageBox box(nullptr, QMessageBox::Information, QStringLiteral("text"),
                    QStringLiteral("title"), QMessageBox::Ok, -1);
    for (const QSize& size : {QSize(300, 200), QSize(301, 201), QSize(302, 203)}) {
        box.resize(size);
        const QImage image = rendered(box, scale);
        // Through the margin between the rows and the outline.
        for (const Qt::Orientation direction : {Qt::Horizontal, Qt::Vertical}) {
            const bool lying = direction == Qt::Horizontal;
            const QVector<Run> edges = edgesAlong(
                image, direction, lying ? image.height() - int(5 * scale) : int(4 * scale));
            QVERIFY2(edges.size() == 2, qPrintable(textOf(edges)));
            QCOMPARE(edges.first().begin, 0);
            QCOMPARE(edges.first().length(), int(scale));
            QCOMPARE(edges.last().end, lying ? image.width() : image.height());
            QCOMPARE(edges.last().length(), int(scale));
        }
    }
}

void tst_SkinOutline::navigationListKeepsItsBands_data() { allFourEdges_data(); }

void tst_SkinOutline::navigationListKeepsItsBands()
{
    QFETCH(const double, scale);
    QWidget window;
    window.resize(150, 320);
    CNavWidget list(&window);
    list.SetBtnList({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
    for (int place = 0; place < 4; ++place) {
        list.setGeometry(5 + place, 7 + place, 120, 300);
        for (const int selected : {0, 1, 2}) {
            list.selected = selected;
            list.hover = selected;
            const QImage image = rendered(window, scale);
            const auto pixel = [scale](int value) { return qRound(value * scale); };
            const int top = 7 + place;
            // Beside the texts: the list's ground, without the selected entry's band.
            QVector<Run> expected{
                {outlineColour, pixel(top), pixel(top + 50 * selected)},
                {outlineColour, pixel(top + 50 * selected + 50), pixel(top + 300)}};
            if (selected == 0)
                expected.removeFirst();
            const QVector<Run> actual
                = edgesAlong(image, Qt::Vertical, int((5 + place + 10) * scale));
            QCOMPARE(textOf(actual), textOf(expected));
        }
    }
}

TRADECONFIG_TEST_MAIN(tst_SkinOutline)
#include "tst_SkinOutline.moc"
