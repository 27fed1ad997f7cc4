#include "libskin/SkinLibrary.h"
#include "support/MessageCapture.h"
#include "support/TemporarySkin.h"
#include "support/TestMain.h"
#include "tradeConfig/skin/CSkin.h"

#include <QJsonArray>
#include <QPainter>
#include <QPicture>
#include <QRandomGenerator>
#include <QSvgRenderer>
#include <QWidget>

#include <functional>

using CorvelSkin::CSkin;
using CorvelSkin::SkinLibrary;

namespace {

const QColor glassRed(255, 0, 0, 128);
const QColor red(255, 0, 0);
const QColor green(0, 128, 0);
const QColor blue(0, 0, 255);

QImage canvas(int width, int height, double ratio = 1.0)
{
    QImage image(QSize(qRound(width * ratio), qRound(height * ratio)),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    return image;
}

QImage painted(QImage image, const std::function<void(QPainter&)>& paint)
{
    QPainter painter(&image);
    paint(painter);
    painter.end();
    return image;
}

/// The pixels that are not transparent, as they lie on the device.
QRect inkOf(const QImage& image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

/// A bitmap of equal blocks side by side.
QImage strip(const QVector<QColor>& blocks, int side)
{
    QImage image(blocks.size() * side, side, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    for (int block = 0; block < blocks.size(); ++block)
        painter.fillRect(block * side, 0, side, side, blocks.at(block));
    return image;
}

QJsonObject imageEntry(const QString& file, int width, int height, int frames)
{
    return {{QStringLiteral("file"), file},
            {QStringLiteral("size"), QJsonArray{width, height}},
            {QStringLiteral("frames"), frames}};
}

CSkin* skin() { return CSkin::Instance(); }

} // namespace

/// The skin of these tests is the light one with a few keys of its own.
class tst_SkinPaint : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void fillRectHasNoOutline();
    void drawRectMatchesPainter_data();
    void drawRectMatchesPainter();
    void drawRectMatchesPainterAnywhere();
    void drawRectOutlinesAWidget();
    void drawRectLeavesTheInside();
    void drawRectOnOtherDevices();
    void drawLineMatchesPainter_data();
    void drawLineMatchesPainter();
    void drawTextMatchesPainter_data();
    void drawTextMatchesPainter();
    void drawTextTellsItsBounds();
    void textSizeIsWhatDrawTextNeeds_data();
    void textSizeIsWhatDrawTextNeeds();
    void textSizeOfNothing();
    void textSizeOnWidget();
    void painterKeepsItsState();
    void framesOfABitmap_data();
    void framesOfABitmap();
    void wrongFramesDrawNothing_data();
    void wrongFramesDrawNothing();
    void keepingProportions();
    void smoothScaling();
    void denserBitmapsServeDenserScreens();
    void drawingsAreCrisp_data();
    void drawingsAreCrisp();
    void imagesUnderRotation();
    void bitmapSizes();
    void unknownKeys();
    void unknownKeysAreReportedOnce();

private:
    TemporarySkin m_skin;
};

void tst_SkinPaint::initTestCase()
{
    m_skin.set(QStringLiteral("colours"), QStringLiteral("Glass"), QStringLiteral("#80FF0000"));
    m_skin.set(QStringLiteral("colours"), QStringLiteral("Green"), QStringLiteral("#008000"));
    m_skin.write(QStringLiteral("strip.png"), strip({red, green, blue}, 10));
    m_skin.set(QStringLiteral("images"), QStringLiteral("Strip"),
               imageEntry(QStringLiteral("strip.png"), 30, 10, 3));
    m_skin.write(QStringLiteral("edge.png"), strip({Qt::black, Qt::white}, 1));
    m_skin.set(QStringLiteral("images"), QStringLiteral("Edge"),
               QJsonObject{{QStringLiteral("file"), QStringLiteral("edge.png")}});
    m_skin.write(QStringLiteral("dense.png"), strip({red}, 10));
    m_skin.write(QStringLiteral("dense@2x.png"), strip({green}, 20));
    m_skin.write(QStringLiteral("dense@3x.png"), strip({blue}, 30));
    m_skin.set(QStringLiteral("images"), QStringLiteral("Dense"),
               imageEntry(QStringLiteral("dense.png"), 10, 10, 1));
    QVERIFY(SkinLibrary::instance()->load(m_skin.folder()));
    QCOMPARE(SkinLibrary::instance()->problems().size(), 0);
}

void tst_SkinPaint::fillRectHasNoOutline()
{
    const QImage image = painted(canvas(10, 10), [](QPainter& painter) {
        painter.setPen(Qt::blue);
        skin()->fillRect(painter, QRectF(2, 3, 4, 5), QStringLiteral("Glass"));
    });
    QCOMPARE(inkOf(image), QRect(2, 3, 4, 5));
    for (int y = 3; y < 8; ++y) {
        for (int x = 2; x < 6; ++x)
            QCOMPARE(image.pixelColor(x, y), glassRed);
    }
}

void tst_SkinPaint::drawRectMatchesPainter_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<bool>("antialiased");
    QTest::addColumn<int>("style");
    QTest::addColumn<double>("width");
    const QRectF aligned(5, 6, 20, 12);
    const int solid = Qt::SolidLine;
    QTest::newRow("aligned") << aligned << 1.0 << false << solid << 1.0;
    QTest::newRow("1 by 1") << QRectF(5, 6, 1, 1) << 1.0 << false << solid << 1.0;
    QTest::newRow("2 by 1") << QRectF(5, 6, 2, 1) << 1.0 << false << solid << 1.0;
    QTest::newRow("flat") << QRectF(5, 6, 20, 0) << 1.0 << false << solid << 1.0;
    QTest::newRow("empty") << QRectF(5, 6, 0, 0) << 1.0 << false << solid << 1.0;
    QTest::newRow("negative") << QRectF(25, 18, -20, -12) << 1.0 << false << solid << 1.0;
    QTest::newRow("cut off") << QRectF(-3, -3, 20, 12) << 1.0 << false << solid << 1.0;
    QTest::newRow("the whole device") << QRectF(0, 0, 39, 29) << 1.0 << false << solid << 1.0;
    QTest::newRow("beyond the device") << QRectF(0, 0, 41, 31) << 1.0 << false << solid << 1.0;
    QTest::newRow("edges of the device") << QRectF(0, 0, 40, 30) << 1.0 << false << solid << 1.0;
    QTest::newRow("right edge of the device")
        << QRectF(5, 0, 35, 30) << 1.0 << false << solid << 1.0;
    QTest::newRow("lower edge of the device")
        << QRectF(0, 6, 40, 24) << 1.0 << false << solid << 1.0;
    QTest::newRow("edges of the device, dashes")
        << QRectF(0, 0, 40, 30) << 1.0 << false << int(Qt::DashLine) << 1.0;
    QTest::newRow("edges of the device, wide")
        << QRectF(0, 0, 40, 30) << 1.0 << false << solid << 3.0;
    QTest::newRow("edges of the device, antialiased")
        << QRectF(0, 0, 40, 30) << 1.0 << true << solid << 1.0;
    QTest::newRow("edges of the device, ratio 1.5")
        << QRectF(0, 0, 40, 30) << 1.5 << false << solid << 1.0;
    QTest::newRow("edges of the device, ratio 2")
        << QRectF(0, 0, 40, 30) << 2.0 << false << solid << 1.0;
    QTest::newRow("the whole, ratio 2") << QRectF(0, 0, 39, 29) << 2.0 << false << solid << 1.0;
    QTest::newRow("half a pixel") << QRectF(5.5, 6.5, 20, 12) << 1.0 << false << solid << 1.0;
    QTest::newRow("fractions") << QRectF(5.3, 6.7, 20.4, 12.9) << 1.0 << false << solid << 1.0;
    QTest::newRow("ratio 1.25") << aligned << 1.25 << false << solid << 1.0;
    QTest::newRow("ratio 1.5") << aligned << 1.5 << false << solid << 1.0;
    QTest::newRow("ratio 1.5, on the grid") << QRectF(4, 6, 20, 12) << 1.5 << false << solid << 1.0;
    QTest::newRow("ratio 2") << aligned << 2.0 << false << solid << 1.0;
    QTest::newRow("ratio 2, halves") << QRectF(5.5, 6.5, 20.5, 12) << 2.0 << false << solid << 1.0;
    QTest::newRow("ratio 2, thirds") << QRectF(5.3, 6.3, 20.3, 12) << 2.0 << false << solid << 1.0;
    QTest::newRow("ratio 3") << aligned << 3.0 << false << solid << 1.0;
    QTest::newRow("ratio 4") << aligned << 4.0 << false << solid << 1.0;
    QTest::newRow("antialiased") << aligned << 1.0 << true << solid << 1.0;
    QTest::newRow("antialiased, ratio 2") << aligned << 2.0 << true << solid << 1.0;
    QTest::newRow("wide") << aligned << 1.0 << false << solid << 3.0;
    QTest::newRow("hairline") << aligned << 1.0 << false << solid << 0.0;
    QTest::newRow("dashes") << aligned << 1.0 << false << int(Qt::DashLine) << 1.0;
    QTest::newRow("no pen") << aligned << 1.0 << false << int(Qt::NoPen) << 1.0;
}

void tst_SkinPaint::drawRectMatchesPainter()
{
    QFETCH(const QRectF, rect);
    QFETCH(const double, ratio);
    QFETCH(const bool, antialiased);
    QFETCH(const int, style);
    QFETCH(const double, width);
    const auto penStyle = Qt::PenStyle(style);
    const QImage expected = painted(canvas(40, 30, ratio), [&](QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing, antialiased);
        painter.setPen(QPen(glassRed, width, penStyle, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(rect);
    });
    const QImage actual = painted(canvas(40, 30, ratio), [&](QPainter& painter) {
        painter.setRenderHint(QPainter::Antialiasing, antialiased);
        skin()->drawRect(painter, rect, QStringLiteral("Glass"), penStyle, width);
    });
    QCOMPARE(inkOf(actual), inkOf(expected));
    QCOMPARE(actual, expected);
    QCOMPARE(inkOf(actual).isEmpty(), penStyle == Qt::NoPen || rect.isNull());
}

void tst_SkinPaint::drawRectMatchesPainterAnywhere()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const double steps[] = {1.0, 0.5, 0.25, 0.1};
    for (int round = 0; round < 3000; ++round) {
        const double step = steps[random.bounded(4)];
        const auto number = [&](int low, int high) {
            return random.bounded(int(low / step), int(high / step)) * step;
        };
        const double ratio = 1.0 + random.bounded(3);
        const QRectF rect(number(-5, 20), number(-5, 20), number(0, 20), number(0, 20));
        const QPointF moved(number(-3, 3), number(-3, 3));
        const QRectF clip(number(0, 10), number(0, 10), number(5, 30), number(5, 30));
        const bool clipped = random.bounded(3) == 0;
        const auto prepare = [&](QPainter& painter) {
            painter.translate(moved);
            if (clipped)
                painter.setClipRect(clip);
        };
        const QImage expected = painted(canvas(40, 30, ratio), [&](QPainter& painter) {
            prepare(painter);
            painter.setPen(QPen(glassRed, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
            painter.drawRect(rect);
        });
        const QImage actual = painted(canvas(40, 30, ratio), [&](QPainter& painter) {
            prepare(painter);
            skin()->drawRect(painter, rect, QStringLiteral("Glass"), Qt::SolidLine, 1.0);
        });
        if (actual != expected) {
            qWarning() << "round" << round << rect << moved << ratio << clipped << clip
                       << inkOf(actual) << inkOf(expected);
            QFAIL("an outline differs from the painter's");
        }
    }
}

void tst_SkinPaint::drawRectOutlinesAWidget()
{
    class Outlined : public QWidget {
    public:
        using QWidget::QWidget;
        void paintEvent(QPaintEvent*) override
        {
            QPainter painter(this);
            skin()->drawRect(painter, QRectF(rect()), QStringLiteral("Green"), Qt::SolidLine, 1.0);
        }
    };
    QWidget window;
    window.resize(40, 30);
    Outlined inner(&window);
    inner.setGeometry(5, 6, 20, 12);
    const QImage image = window.grab().toImage();
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x) {
            const bool within = x >= 5 && x <= 24 && y >= 6 && y <= 17;
            const bool edge = within && (x == 5 || x == 24 || y == 6 || y == 17);
            QCOMPARE(image.pixelColor(x, y) == green, edge);
        }
    }
}

void tst_SkinPaint::drawRectLeavesTheInside()
{
    const QImage image = painted(canvas(20, 20), [](QPainter& painter) {
        painter.setBrush(Qt::blue);
        skin()->drawRect(painter, QRectF(2, 3, 10, 8), QStringLiteral("Glass"), Qt::SolidLine, 1.0);
    });
    // One pixel wide, on the left and upper side of the line, and nowhere twice.
    QCOMPARE(inkOf(image), QRect(2, 3, 11, 9));
    for (int y = 3; y < 12; ++y) {
        for (int x = 2; x < 13; ++x) {
            const bool edge = x == 2 || x == 12 || y == 3 || y == 11;
            QCOMPARE(image.pixelColor(x, y), edge ? glassRed : QColor(0, 0, 0, 0));
        }
    }
}

void tst_SkinPaint::drawRectOnOtherDevices()
{
    QPicture picture;
    {
        QPainter painter(&picture);
        skin()->drawRect(painter, QRectF(2, 3, 10, 8), QStringLiteral("Green"), Qt::SolidLine, 1.0);
    }
    const QImage image = painted(
        canvas(20, 20), [&picture](QPainter& painter) { painter.drawPicture(0, 0, picture); });
    QCOMPARE(inkOf(image), QRect(2, 3, 11, 9));
    QCOMPARE(image.pixelColor(5, 5).alpha(), 0);
}

void tst_SkinPaint::drawLineMatchesPainter_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<double>("width");
    QTest::addColumn<QRect>("ink");
    QTest::newRow("down") << QPointF(5, 2) << QPointF(5, 12) << 1.0 << QRect(5, 2, 1, 11);
    QTest::newRow("across") << QPointF(2, 5) << QPointF(12, 5) << 1.0 << QRect(2, 5, 11, 1);
    QTest::newRow("aslant") << QPointF(2, 2) << QPointF(8, 8) << 1.0 << QRect(2, 2, 7, 7);
    QTest::newRow("wide") << QPointF(4, 5) << QPointF(12, 5) << 3.0 << QRect(3, 4, 11, 3);
}

void tst_SkinPaint::drawLineMatchesPainter()
{
    QFETCH(const QPointF, from);
    QFETCH(const QPointF, to);
    QFETCH(const double, width);
    QFETCH(const QRect, ink);
    const QImage actual = painted(canvas(20, 20), [&](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        skin()->drawLine(painter, QStringLiteral("Green"), from, to, Qt::SolidLine, width);
    });
    const QImage expected = painted(canvas(20, 20), [&](QPainter& painter) {
        painter.setPen(QPen(green, width));
        painter.drawLine(from, to);
    });
    QCOMPARE(actual, expected);
    QCOMPARE(inkOf(actual), ink);
}

void tst_SkinPaint::drawTextMatchesPainter_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("text");
    QTest::newRow("centred") << 0x84 << QStringLiteral("系统设置");
    QTest::newRow("single line") << 0x184 << QStringLiteral("two\nlines");
    QTest::newRow("wrapped anywhere") << 0x2084 << QStringLiteral("快捷键设置快捷键设置");
    QTest::newRow("bottom") << 0xC4 << QStringLiteral("▲");
    QTest::newRow("left") << int(Qt::AlignLeft) << QStringLiteral("提示 & more");
    QTest::newRow("too wide") << 0x184 << QStringLiteral("wider than the rectangle is for sure");
}

void tst_SkinPaint::drawTextMatchesPainter()
{
    QFETCH(const int, flags);
    QFETCH(const QString, text);
    const QRectF rect(10, 10, 60, 40);
    QFont font = shippedFont();
    font.setWeight(QFont::DemiBold);
    const QImage expected = painted(canvas(80, 60), [&](QPainter& painter) {
        painter.setFont(font);
        painter.setPen(green);
        painter.drawText(rect, flags, text);
    });
    const QImage actual = painted(canvas(80, 60), [&](QPainter& painter) {
        skin()->drawText(painter, rect, flags, QStringLiteral("Green"),
                         QStringLiteral("NavSwitchSel"), text);
    });
    QCOMPARE(actual, expected);
    QVERIFY(!inkOf(actual).isEmpty());
    QVERIFY(QRect(10, 10, 60, 40).contains(inkOf(actual)));
}

void tst_SkinPaint::drawTextTellsItsBounds()
{
    QRectF bounds;
    const QImage image = painted(canvas(200, 60), [&bounds](QPainter& painter) {
        bounds = skin()->drawText(painter, QRectF(0, 0, 200, 60), 0x184, QStringLiteral("Green"),
                                  QStringLiteral("Switch"), QStringLiteral("系统设置"));
    });
    QVERIFY(bounds.toAlignedRect().contains(inkOf(image)));
    QVERIFY(qAbs(bounds.center().x() - 100.0) <= 1.0);
    QVERIFY(qAbs(bounds.center().y() - 30.0) <= 1.0);
    // Four characters, each as wide as it is high.
    QVERIFY(qAbs(bounds.width() - 52.0) <= 1.0);
}

void tst_SkinPaint::textSizeIsWhatDrawTextNeeds_data()
{
    QTest::addColumn<QString>("font");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("ratio");
    const QString fonts[] = {QStringLiteral("Switch"), QStringLiteral("NavSwitch"),
                             QStringLiteral("NavSwitchSel"), QStringLiteral("NoSuchFont")};
    const QString texts[]
        = {QStringLiteral("系统设置"), QStringLiteral("AVAVA W. fj"), QStringLiteral("一"),
           QStringLiteral("▼"),        QStringLiteral("two\nlines"),  QStringLiteral(" a b ")};
    for (const QString& font : fonts) {
        for (const QString& text : texts) {
            for (const double ratio : {1.0, 1.5, 2.0})
                QTest::addRow("%s %s %g", qUtf8Printable(font),
                              text.toUtf8().toPercentEncoding().constData(), ratio)
                    << font << text << ratio;
        }
    }
}

void tst_SkinPaint::textSizeIsWhatDrawTextNeeds()
{
    QFETCH(const QString, font);
    QFETCH(const QString, text);
    QFETCH(const double, ratio);
    const MessageCapture quiet;
    QImage device = canvas(200, 60, ratio);
    const QSizeF size = skin()->textSize(&device, font, text);
    const auto drawnInto = [&](const QSizeF& room, QRectF& bounds) {
        return painted(device, [&](QPainter& painter) {
            bounds = skin()->drawText(painter, QRectF(QPointF(5, 5), room), Qt::AlignLeft,
                                      QStringLiteral("Green"), font, text);
        });
    };
    QRectF bounds;
    QRectF roomyBounds;
    const QImage exact = drawnInto(size, bounds);
    const QImage roomy = drawnInto(QSizeF(190, 50), roomyBounds);
    QCOMPARE(exact, roomy);
    QVERIFY(!inkOf(exact).isEmpty());
    QCOMPARE(size, roomyBounds.size());
}

void tst_SkinPaint::textSizeOfNothing()
{
    QImage device = canvas(1, 1);
    const QSizeF empty = skin()->textSize(&device, QStringLiteral("Switch"), QString());
    const QSizeF letter = skin()->textSize(&device, QStringLiteral("Switch"), QStringLiteral("x"));
    QCOMPARE(empty.width(), 0.0);
    QCOMPARE(empty.height(), letter.height());
    QVERIFY(empty.height() > 13.0);
    QCOMPARE(skin()->textSize(nullptr, QStringLiteral("Switch"), QStringLiteral("x")), letter);
}

void tst_SkinPaint::textSizeOnWidget()
{
    QWidget widget;
    widget.setFont(QFont(QStringLiteral("Arial"), 40));
    const QSizeF one
        = skin()->textSize(&widget, QStringLiteral("NavSwitchSel"), QStringLiteral("一"));
    QVERIFY2(qAbs(one.width() - 13.0) <= 1.0, qPrintable(QString::number(one.width())));
    const QSizeF five
        = skin()->textSize(&widget, QStringLiteral("NavSwitchSel"), QStringLiteral("快捷键设置"));
    QVERIFY2(qAbs(five.width() - 65.0) <= 1.0, qPrintable(QString::number(five.width())));
}

void tst_SkinPaint::painterKeepsItsState()
{
    QImage image = canvas(60, 60);
    QPainter painter(&image);
    const QPen pen(Qt::magenta, 2.5, Qt::DotLine);
    const QBrush brush(Qt::cyan, Qt::Dense3Pattern);
    QFont font(QStringLiteral("Arial"), 31);
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.setFont(font);
    font = painter.font();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QPainter::RenderHints hints = painter.renderHints();
    const QRectF rect(5, 5, 30, 30);
    const QString colour = QStringLiteral("Green");
    skin()->fillRect(painter, rect, colour);
    skin()->drawRect(painter, rect, colour, Qt::SolidLine, 1.0);
    skin()->drawRect(painter, rect, colour, Qt::DashLine, 2.0);
    skin()->drawLine(painter, colour, QPointF(1, 1), QPointF(9, 9), Qt::SolidLine, 1.0);
    skin()->drawText(painter, rect, 0x184, colour, QStringLiteral("Switch"), QStringLiteral("x"));
    skin()->drawImage(painter, rect, QStringLiteral("Strip"), 3, 1, true, true);
    skin()->drawImage(painter, rect, QStringLiteral("win_normal"), 3, 1, false, false);
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.brush(), brush);
    QCOMPARE(painter.font(), font);
    QCOMPARE(painter.renderHints(), hints);
    QVERIFY(painter.transform().isIdentity());
    QVERIFY(!painter.hasClipping());
}

void tst_SkinPaint::framesOfABitmap_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<QColor>("left");
    QTest::addColumn<QColor>("right");
    QTest::newRow("first of three") << 3 << 0 << red << red;
    QTest::newRow("second of three") << 3 << 1 << green << green;
    QTest::newRow("third of three") << 3 << 2 << blue << blue;
    QTest::newRow("the whole") << 1 << 0 << red << blue;
    QTest::newRow("first half") << 2 << 0 << red << green;
    QTest::newRow("second half") << 2 << 1 << green << blue;
}

void tst_SkinPaint::framesOfABitmap()
{
    QFETCH(const int, count);
    QFETCH(const int, index);
    QFETCH(const QColor, left);
    QFETCH(const QColor, right);
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const QImage image = painted(canvas(40, 20, ratio), [&](QPainter& painter) {
            skin()->drawImage(painter, QRectF(4, 4, 30, 10), QStringLiteral("Strip"), count, index,
                              false, false);
        });
        const QRect area(qRound(4 * ratio), qRound(4 * ratio), qRound(30 * ratio),
                         qRound(10 * ratio));
        QCOMPARE(inkOf(image), area);
        QCOMPARE(image.pixelColor(area.topLeft()), left);
        QCOMPARE(image.pixelColor(area.bottomRight()), right);
    }
}

void tst_SkinPaint::wrongFramesDrawNothing_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<QRectF>("rect");
    const QRectF rect(4, 4, 10, 10);
    QTest::newRow("no frames") << 0 << 0 << rect;
    QTest::newRow("fewer than none") << -1 << 0 << rect;
    QTest::newRow("before the first") << 3 << -1 << rect;
    QTest::newRow("after the last") << 3 << 3 << rect;
    QTest::newRow("no width") << 3 << 0 << QRectF(4, 4, 0, 10);
    QTest::newRow("no number") << 3 << 0 << QRectF(4, 4, qQNaN(), 10);
}

void tst_SkinPaint::wrongFramesDrawNothing()
{
    QFETCH(const int, count);
    QFETCH(const int, index);
    QFETCH(const QRectF, rect);
    for (const char* key : {"Strip", "win_normal"}) {
        const QImage image = painted(canvas(20, 20), [&](QPainter& painter) {
            skin()->drawImage(painter, rect, QLatin1String(key), count, index, false, false);
        });
        QVERIFY(inkOf(image).isEmpty());
    }
}

void tst_SkinPaint::keepingProportions()
{
    const auto ink = [](const QRectF& rect, int count, bool keep) {
        return inkOf(painted(canvas(80, 80), [&](QPainter& painter) {
            skin()->drawImage(painter, rect, QStringLiteral("Strip"), count, 0, keep, false);
        }));
    };
    QCOMPARE(ink(QRectF(10, 10, 40, 20), 3, true), QRect(20, 10, 20, 20));
    QCOMPARE(ink(QRectF(10, 10, 20, 40), 3, true), QRect(10, 20, 20, 20));
    QCOMPARE(ink(QRectF(10, 10, 60, 60), 1, true), QRect(10, 30, 60, 20));
    QCOMPARE(ink(QRectF(10, 10, 40, 20), 3, false), QRect(10, 10, 40, 20));
    QCOMPARE(ink(QRectF(10, 10, 60, 60), 1, false), QRect(10, 10, 60, 60));
}

void tst_SkinPaint::smoothScaling()
{
    const auto greys = [](bool smooth) {
        const QImage image = painted(canvas(40, 20), [smooth](QPainter& painter) {
            skin()->drawImage(painter, QRectF(0, 0, 40, 20), QStringLiteral("Edge"), 1, 0, false,
                              smooth);
        });
        QSet<QRgb> values;
        for (int x = 0; x < 40; ++x)
            values.insert(image.pixel(x, 10));
        return values;
    };
    QCOMPARE(greys(false), (QSet<QRgb>{0xff000000u, 0xffffffffu}));
    QVERIFY(greys(true).size() > 5);
}

void tst_SkinPaint::denserBitmapsServeDenserScreens()
{
    const auto colour = [](double ratio) {
        const QImage image = painted(canvas(20, 20, ratio), [](QPainter& painter) {
            skin()->drawImage(painter, QRectF(5, 5, 10, 10), QStringLiteral("Dense"), 1, 0, false,
                              false);
        });
        return image.pixelColor(image.rect().center());
    };
    QCOMPARE(skin()->GetBitmapSize(QStringLiteral("Dense")), QSizeF(10, 10));
    QCOMPARE(colour(1.0), red);
    QCOMPARE(colour(1.5), green);
    QCOMPARE(colour(2.0), green);
    QCOMPARE(colour(3.0), blue);
    QCOMPARE(colour(4.0), blue);
}

void tst_SkinPaint::drawingsAreCrisp_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QPointF>("corner");
    QTest::addColumn<QPoint>("pixel");
    QTest::addColumn<int>("side");
    QTest::newRow("100 %") << 1.0 << QPointF(6, 8) << QPoint(6, 8) << 14;
    QTest::newRow("100 %, between pixels") << 1.0 << QPointF(6.4, 7.7) << QPoint(6, 8) << 14;
    QTest::newRow("125 %") << 1.25 << QPointF(6, 8) << QPoint(8, 10) << 18;
    QTest::newRow("150 %") << 1.5 << QPointF(6, 8) << QPoint(9, 12) << 21;
    QTest::newRow("150 %, between pixels") << 1.5 << QPointF(7, 8) << QPoint(11, 12) << 21;
    QTest::newRow("200 %") << 2.0 << QPointF(6, 8) << QPoint(12, 16) << 28;
    QTest::newRow("300 %") << 3.0 << QPointF(6, 8) << QPoint(18, 24) << 42;
}

void tst_SkinPaint::drawingsAreCrisp()
{
    QFETCH(const double, ratio);
    QFETCH(const QPointF, corner);
    QFETCH(const QPoint, pixel);
    QFETCH(const int, side);
    QSvgRenderer drawing(QStringLiteral(TRADECONFIG_SKINS_DIR "/light/images/restore.svg"));
    QVERIFY(drawing.isValid());
    for (const bool smooth : {false, true}) {
        for (int index = 0; index < 3; ++index) {
            const QImage actual = painted(canvas(30, 30, ratio), [&](QPainter& painter) {
                skin()->drawImage(painter, QRectF(corner, QSizeF(14, 14)),
                                  QStringLiteral("win_renew"), 3, index, true, smooth);
            });
            QImage whole = canvas(3 * side, side);
            whole = painted(whole, [&](QPainter& painter) {
                drawing.render(&painter, QRectF(0, 0, 3 * side, side));
            });
            QCOMPARE(actual.copy(QRect(pixel, QSize(side, side))).convertToFormat(whole.format()),
                     [&] {
                         QImage frame = whole.copy(index * side, 0, side, side);
                         frame.setDevicePixelRatio(ratio);
                         return frame;
                     }());
            QVERIFY(QRect(pixel, QSize(side, side)).contains(inkOf(actual)));
        }
    }
}

void tst_SkinPaint::imagesUnderRotation()
{
    const QImage image = painted(canvas(40, 40), [](QPainter& painter) {
        painter.translate(20, 20);
        painter.rotate(90);
        skin()->drawImage(painter, QRectF(-15, -5, 30, 10), QStringLiteral("Strip"), 1, 0, false,
                          false);
    });
    QCOMPARE(inkOf(image), QRect(15, 5, 10, 30));
    QCOMPARE(image.pixelColor(20, 7), red);
    QCOMPARE(image.pixelColor(20, 32), blue);
}

void tst_SkinPaint::bitmapSizes()
{
    QCOMPARE(skin()->GetBitmapSize(QStringLiteral("Strip")), QSizeF(30, 10));
    QCOMPARE(skin()->GetBitmapSize(QStringLiteral("Edge")), QSizeF(2, 1));
    QCOMPARE(skin()->GetBitmapSize(QStringLiteral("win_normal")), QSizeF(42, 14));
    QCOMPARE(skin()->GetBitmapSize(QStringLiteral("PanelClose")), QSizeF(14, 14));
}

void tst_SkinPaint::unknownKeys()
{
    const MessageCapture quiet;
    const QString unknown = QStringLiteral("NoSuchKey");
    const QRectF rect(2, 2, 30, 30);
    QRectF bounds(1, 1, 1, 1);
    const QImage image = painted(canvas(40, 40), [&](QPainter& painter) {
        skin()->fillRect(painter, rect, unknown);
        skin()->drawRect(painter, rect, unknown, Qt::SolidLine, 1.0);
        skin()->drawRect(painter, rect, unknown, Qt::DashLine, 2.0);
        skin()->drawLine(painter, unknown, QPointF(2, 2), QPointF(9, 9), Qt::SolidLine, 1.0);
        skin()->drawImage(painter, rect, unknown, 1, 0, false, false);
        bounds = skin()->drawText(painter, rect, 0x84, unknown, QStringLiteral("Switch"),
                                  QStringLiteral("x"));
        // Kinds are never mixed, and case matters.
        skin()->fillRect(painter, rect, QStringLiteral("Switch"));
        skin()->fillRect(painter, rect, QStringLiteral("green"));
        skin()->drawImage(painter, rect, QStringLiteral("Green"), 1, 0, false, false);
    });
    QVERIFY(inkOf(image).isEmpty());
    QCOMPARE(bounds, QRectF());
    QVERIFY(skin()->GetBitmapSize(unknown).isEmpty());
    QVERIFY(!SkinLibrary::instance()->colour(unknown).isValid());

    // An unknown font is the default font.
    const QRectF roomy(0, 0, 40, 40);
    const QImage expected = painted(canvas(40, 40), [&roomy](QPainter& painter) {
        painter.setFont(QApplication::font());
        painter.setPen(green);
        painter.drawText(roomy, 0x84, QStringLiteral("Ag"));
    });
    QCOMPARE(painted(canvas(40, 40),
                     [&](QPainter& painter) {
                         skin()->drawText(painter, roomy, 0x84, QStringLiteral("Green"), unknown,
                                          QStringLiteral("Ag"));
                     }),
             expected);
}

void tst_SkinPaint::unknownKeysAreReportedOnce()
{
    const MessageCapture log;
    QImage image = canvas(10, 10);
    QPainter painter(&image);
    for (int round = 0; round < 3; ++round) {
        skin()->fillRect(painter, QRectF(0, 0, 9, 9), QStringLiteral("Missing colour"));
        skin()->drawRect(painter, QRectF(0, 0, 9, 9), QStringLiteral("Missing colour"),
                         Qt::SolidLine, 1.0);
        skin()->textSize(&image, QStringLiteral("MissingFont"), QStringLiteral("x"));
        skin()->drawImage(painter, QRectF(0, 0, 9, 9), QStringLiteral("MissingImage"), 1, 0, false,
                          false);
        skin()->GetBitmapSize(QStringLiteral("MissingImage"));
        // The same name as another kind is another key.
        skin()->GetBitmapSize(QStringLiteral("MissingFont"));
    }
    QCOMPARE(log.count(QStringLiteral("\"Missing colour\"")), 1);
    QCOMPARE(log.count(QStringLiteral("font key \"MissingFont\"")), 1);
    QCOMPARE(log.count(QStringLiteral("image key \"MissingFont\"")), 1);
    QCOMPARE(log.count(QStringLiteral("\"MissingImage\"")), 1);
    QCOMPARE(log.texts().size(), 4);

    // Known keys are not reported, and another skin does not begin anew.
    skin()->fillRect(painter, QRectF(0, 0, 9, 9), QStringLiteral("Green"));
    QVERIFY(SkinLibrary::instance()->load(m_skin.folder()));
    skin()->fillRect(painter, QRectF(0, 0, 9, 9), QStringLiteral("Missing colour"));
    QCOMPARE(log.texts().size(), 4);
}

TRADECONFIG_TEST_MAIN(tst_SkinPaint)
#include "tst_SkinPaint.moc"
