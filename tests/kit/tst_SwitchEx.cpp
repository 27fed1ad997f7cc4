#include "support/RecordingSkin.h"
#include "support/ShownBar.h"
#include "support/TestMain.h"
#include "support/UpdateCounter.h"
#include "tradeConfig/SwitchEx.h"

#include <QMenu>
#include <QScreen>

#include <memory>

Q_DECLARE_METATYPE(Qt::Orientation)
Q_DECLARE_METATYPE(QMarginsF)

class tst_SwitchEx : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void names();
    void aNewItem();
    void aNewBar();
    void measuring_data();
    void measuring();
    void addingTextItems();
    void theFixedSizeIgnoresTheContent();
    void itemsAreMeasuredInOrder();
    void imagesKeepWholePixels();
    void addingSeparators();
    void aSizeSetLaterMeasuresByContent();
    void threePageGroupsFitExactly();
    void aFractionOfAPixelOverflows();
    void everythingFits();
    void everythingFitsInAColumn();
    void overflow();
    void overflowOfAColumn();
    void scrolling();
    void scrollingAColumn();
    void aNarrowColumnNeverReachesItsEnd();
    void wideningPullsEarlierItemsBack();
    void aColumnComparesTheWidth();
    void aNarrowColumnGoesBackToItsFirstItem();
    void severalItemsComeBackAtOnce();
    void equalDivision();
    void equalDivisionFillsFromBothEnds();
    void equalDivisionScrollsBackButKeepsTheCount();
    void changingModeAndOrientationDoesNotMeasure();
    void anEmptyBarIgnoresLayout();
    void hitTesting();
    void hitTestingBeyondTheItemsShown();
    void aPressSelectsAndAReleaseRuns();
    void aDoubleClickCountsTwice();
    void aPressDoesNotSelectASeparator();
    void theProgramSelectsASeparator();
    void hovering();
    void theSelectionOutlivesScrolling();
    void selectingFromTheProgram();
    void modifying();
    void clearing();
    void clearingFreesTheItems();
    void theDestructorFreesNoItems();
    void anActionMayClearOrDeleteTheBar();
    void menus_data();
    void menus();
    void theMenuIsSizedByItsContents();
    void cornersAreRounded();
    void anEmptyMenuDoesNothing();
    void repaints();
    void addingAfterStateChangedBehindTheLayout();
    void aCellChangedFromOutsideCountsAtTheNextAddition_data();
    void aCellChangedFromOutsideCountsAtTheNextAddition();
    void aCellMovedFromOutsideIsPutBackByTheNextAddition();
    void oneMoreBesideMany();
};

namespace {

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

class Bar : public ShownBar {
public:
    using ShownBar::ShownBar;

    int pixelRatio = 1;

    QVector<SwitchItem*> add(int count, const char* prefix = "i", bool atEnd = false)
    {
        QVector<SwitchItem*> added;
        for (int i = 0; i < count; ++i)
            added << AddNormalSwitch(text(prefix) + QString::number(i), {}, atEnd);
        return added;
    }

    void mouse(QEvent::Type type, QPointF at, Qt::MouseButton button = Qt::LeftButton)
    {
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease
            ? Qt::MouseButtons(Qt::NoButton)
            : Qt::MouseButtons(button);
        const bool move = type == QEvent::MouseMove;
        QMouseEvent event(type, at, mapToGlobal(at.toPoint()), move ? Qt::NoButton : button, held,
                          Qt::NoModifier);
        QApplication::sendEvent(this, &event);
    }
    void press(QPointF at, Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseButtonPress, at, button);
    }
    void release(QPointF at, Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseButtonRelease, at, button);
    }
    void click(QPointF at)
    {
        press(at);
        release(at);
    }
    void move(QPointF at, Qt::MouseButton held = Qt::NoButton)
    {
        mouse(QEvent::MouseMove, at, held);
    }
    void leave()
    {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(this, &event);
    }

protected:
    int metric(PaintDeviceMetric which) const override
    {
        return which == PdmDevicePixelRatio ? pixelRatio : ShownBar::metric(which);
    }
};

using Rects = QVector<QRectF>;

Rects rects(const QVector<SwitchItem*>& items)
{
    Rects result;
    for (const SwitchItem* item : items)
        result << item->rect;
    return result;
}

} // namespace

void tst_SwitchEx::init() { RecordingSkin::reset(); }

void tst_SwitchEx::names()
{
    QCOMPARE(SWITCH_ARROW_LEFT, QString(QChar(0x25C0)));
    QCOMPARE(SWITCH_ARROW_RIGHT, QString(QChar(0x25B6)));
    QCOMPARE(SWITCH_ARROW_UP, QString(QChar(0x25B2)));
    QCOMPARE(SWITCH_ARROW_DOWN, QString(QChar(0x25BC)));
    QCOMPARE(int(CSwitchEx::ModeSwitch), 1);
    QCOMPARE(int(CSwitchEx::ModeButton), 2);
    QCOMPARE(int(CSwitchEx::ModeFlatButton), 3);
    QCOMPARE(int(CSwitchEx::ModeFlatBlue), 4);
    QCOMPARE(int(CSwitchEx::ModeIKButton), 5);
    QCOMPARE(int(CSwitchEx::ModeImageButton), 6);
    QCOMPARE(int(CSwitchEx::ModeNavButton), 7);
}

void tst_SwitchEx::aNewItem()
{
    const SwitchItem item;
    QVERIFY(item.label.isEmpty());
    QVERIFY(item.image.isEmpty());
    QVERIFY(item.selImage.isEmpty());
    QVERIFY(item.rect.isNull());
    QVERIFY(!item.isSeparator);
    QVERIFY(!item.isImage);
    QVERIFY(!item.menu);
    QVERIFY(!item.callback);
}

void tst_SwitchEx::aNewBar()
{
    QWidget parent;
    const CSwitchEx bar(&parent, Qt::Vertical, QMargins(1, 2, 3, 4));
    QCOMPARE(bar.parentWidget(), &parent);
    QVERIFY(bar.items.isEmpty());
    QVERIFY(bar.endItems.isEmpty());
    QCOMPARE(bar.firstIndex, 0);
    QCOMPARE(bar.visibleCount, 0);
    QCOMPARE(bar.itemSize, 0);
    QVERIFY(!bar.hoverItem);
    QVERIFY(!bar.curSel);
    QCOMPARE(bar.mode, CSwitchEx::ModeButton);
    QCOMPARE(bar.orientation, Qt::Vertical);
    QVERIFY(!bar.moreShown);
    QCOMPARE(bar.moreRect, QRectF());
    QCOMPARE(bar.padding, QMarginsF(1, 2, 3, 4));
    QVERIFY(bar.backgroundEnable);
    QVERIFY(bar.hasMouseTracking());
    QCOMPARE(CSwitchEx(nullptr, Qt::Horizontal, QMargins()).orientation, Qt::Horizontal);
}

// The bar is 300 x 40 or 40 x 300; texts take 10 pixels a character and 16 of height.
void tst_SwitchEx::measuring_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QMarginsF>("padding");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QStringList>("measurements");

    const QStringList label{text("textSize CSwitchEx Switch \"abc\"")};
    const QStringList down = label + QStringList{text("textSize CSwitchEx Switch \"▼\"")};
    const QStringList right = label + QStringList{text("textSize CSwitchEx Switch \"▶\"")};
    const QStringList image{text("GetBitmapSize picture")};
    const QMarginsF none;
    const QMarginsF some(1, 2.5, 4, 8);
    QTest::newRow("text") << Qt::Horizontal << none << text("text") << QSizeF(60, 40) << label;
    QTest::newRow("text, padded") << Qt::Horizontal << some << text("text") << QSizeF(65, 50.5)
                                  << label;
    QTest::newRow("text, column") << Qt::Vertical << none << text("text") << QSizeF(40, 26)
                                  << label;
    QTest::newRow("text, column, padded")
        << Qt::Vertical << some << text("text") << QSizeF(45, 36.5) << label;
    // The arrow is 12 x 20 here.
    QTest::newRow("menu") << Qt::Horizontal << none << text("menu") << QSizeF(72, 40) << down;
    QTest::newRow("menu, padded") << Qt::Horizontal << some << text("menu") << QSizeF(77, 50.5)
                                  << down;
    QTest::newRow("menu, column") << Qt::Vertical << none << text("menu") << QSizeF(40, 30)
                                  << right;
    QTest::newRow("menu, column, padded")
        << Qt::Vertical << some << text("menu") << QSizeF(45, 40.5) << right;
    QTest::newRow("image") << Qt::Horizontal << none << text("image") << QSizeF(24.75, 20.5)
                           << image;
    QTest::newRow("image, padded")
        << Qt::Horizontal << some << text("image") << QSizeF(29.75, 31) << image;
    QTest::newRow("image, column, padded")
        << Qt::Vertical << some << text("image") << QSizeF(29.75, 31) << image;
    QTest::newRow("unknown image, padded")
        << Qt::Horizontal << some << text("unknown") << QSizeF(5, 10.5)
        << QStringList{text("GetBitmapSize unknown")};
    QTest::newRow("separator") << Qt::Horizontal << none << text("separator") << QSizeF(30, 40)
                               << QStringList{text("textSize CSwitchEx Switch \"\"")};
}

void tst_SwitchEx::measuring()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QMarginsF, padding);
    QFETCH(QString, kind);
    QFETCH(QSizeF, size);
    QFETCH(QStringList, measurements);
    RecordingSkin::setBitmapSize(text("picture"), QSizeF(24.75, 20.5));
    RecordingSkin::setTextSize([](const QString&, const QString& label) {
        return label == SWITCH_ARROW_DOWN || label == SWITCH_ARROW_RIGHT
            ? QSizeF(12, 20)
            : QSizeF(10 * label.size(), 16);
    });
    for (int mode = 1; mode <= 7; ++mode) {
        Bar bar(orientation, orientation == Qt::Horizontal ? QSize(300, 40) : QSize(40, 300));
        bar.changeMode(CSwitchEx::SwitchMode(mode));
        bar.SetPadding(padding);
        QMenu menu;
        SwitchItem item;
        item.isImage = kind == text("image") || kind == text("unknown");
        item.isSeparator = kind == text("separator");
        item.label = item.isSeparator ? QString() : text("abc");
        item.image = kind == text("image") ? text("picture") : text("unknown");
        item.selImage = text("never measured");
        item.menu = kind == text("menu") ? &menu : nullptr;
        RecordingSkin::takeMeasurements();
        QCOMPARE(bar.CalcItemSize(&item), size);
        QCOMPARE(RecordingSkin::takeMeasurements(), measurements);
    }
}

void tst_SwitchEx::addingTextItems()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    QMenu menu;
    int runs = 0;
    SwitchItem* const a = bar.AddNormalSwitch(
        text("a"), [&] { ++runs; }, false, nullptr);
    SwitchItem* const b = bar.AddNormalSwitch(text("b"), {}, true, &menu);
    SwitchItem* const c = bar.AddNormalSwitch(text("c"), {}, false, nullptr);
    QCOMPARE(bar.items, (QVector<SwitchItem*>{a, c}));
    QCOMPARE(bar.endItems, QVector<SwitchItem*>{b});
    QCOMPARE(a->label, text("a"));
    QVERIFY(!a->isImage);
    QVERIFY(!a->isSeparator);
    QVERIFY(!a->menu);
    QCOMPARE(b->menu, &menu);
    QVERIFY(!b->callback);
    QCOMPARE(runs, 0);
    a->callback();
    QCOMPARE(runs, 1);
    QVERIFY(!bar.curSel);
    QCOMPARE(a->rect, QRectF(0, 0, 40, 40));
    QCOMPARE(c->rect, QRectF(40, 0, 40, 40));
    QCOMPARE(b->rect, QRectF(250, 0, 50, 40));
}

void tst_SwitchEx::theFixedSizeIgnoresTheContent()
{
    // Out of room, so that no layout touches the size.
    Bar bar(Qt::Horizontal, QSize(100, 40), QMargins(9, 9, 9, 9));
    bar.setItemSize(219);
    RecordingSkin::takeMeasurements();
    QMenu menu;
    const SwitchItem* const item = bar.AddNormalSwitch(text("long text"), {}, false, &menu);
    QCOMPARE(item->rect, QRectF(0, 0, 219, 40));
    QCOMPARE(RecordingSkin::takeMeasurements(), QStringList());

    Bar column(Qt::Vertical, QSize(40, 100), QMargins(9, 9, 9, 9));
    column.setItemSize(219);
    QCOMPARE(column.AddNormalSwitch(text("x"))->rect, QRectF(0, 0, 40, 219));

    // Only 0 asks for measuring.
    Bar negative(Qt::Horizontal, QSize(100, 40));
    negative.setItemSize(-5);
    RecordingSkin::takeMeasurements();
    QCOMPARE(negative.AddNormalSwitch(text("x"))->rect.width(), -5.0);
    QCOMPARE(RecordingSkin::takeMeasurements(), QStringList());
}

void tst_SwitchEx::itemsAreMeasuredInOrder()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    bar.add(1, "end", true);
    bar.add(2, "main");
    RecordingSkin::takeMeasurements();
    bar.SetPadding(QMarginsF(1, 1, 1, 1));
    QCOMPARE(RecordingSkin::takeMeasurements(),
             (QStringList{text("textSize CSwitchEx Switch \"main0\""),
                          text("textSize CSwitchEx Switch \"main1\""),
                          text("textSize CSwitchEx Switch \"end0\"")}));
}

void tst_SwitchEx::imagesKeepWholePixels()
{
    RecordingSkin::setBitmapSize(text("picture"), QSizeF(99.5, 98.25));
    {
        Bar bar(Qt::Horizontal, QSize(60, 41));
        bar.SetPadding(QMarginsF(0.25, 1, 0.125, 1));
        bar.setItemSize(10);
        bar.pixelRatio = 2;
        const SwitchItem* const item = bar.AddImageSwitch(text("l"), text("picture"), text("sel"));
        QCOMPARE(item->rect, QRectF(0, 0, 99, 20));
        QCOMPARE(item->label, text("l"));
        QCOMPARE(item->image, text("picture"));
        QCOMPARE(item->selImage, text("sel"));
        QVERIFY(item->isImage);
        QVERIFY(!item->isSeparator);
    }
    {
        Bar column(Qt::Vertical, QSize(41, 60));
        column.SetPadding(QMarginsF(1, 0.25, 1, 0.375));
        column.pixelRatio = 3;
        QCOMPARE(column.AddImageSwitch(text("l"), text("picture"), {})->rect, QRectF(0, 0, 13, 98));
    }
    {
        // With one device pixel a pixel; the layout then gives the bar's height.
        Bar bar(Qt::Horizontal, QSize(300, 41));
        QCOMPARE(bar.AddImageSwitch(text("l"), text("picture"), {}, {}, true)->rect,
                 QRectF(201, 0, 99, 41));
        QCOMPARE(bar.endItems.size(), 1);
    }
}

void tst_SwitchEx::addingSeparators()
{
    Bar bar(Qt::Horizontal, QSize(300, 40), QMargins(5, 5, 5, 5));
    bar.setItemSize(70);
    RecordingSkin::takeMeasurements();
    const SwitchItem* const main = bar.AddSeparator(8, false);
    const SwitchItem* const end = bar.AddSeparator(9, true);
    QVERIFY(main->isSeparator);
    QVERIFY(!main->isImage);
    QCOMPARE(main->rect, QRectF(0, 0, 8, 40));
    QCOMPARE(end->rect, QRectF(291, 0, 9, 40));
    QCOMPARE(RecordingSkin::takeMeasurements(), QStringList());
    QCOMPARE(bar.items.size(), 1);
    QCOMPARE(bar.endItems.size(), 1);

    Bar column(Qt::Vertical, QSize(40, 300));
    QCOMPARE(column.AddSeparator(8)->rect, QRectF(0, 0, 40, 8));
    QCOMPARE(column.AddSeparator(9, true)->rect, QRectF(0, 291, 40, 9));
}

void tst_SwitchEx::aSizeSetLaterMeasuresByContent()
{
    RecordingSkin::setBitmapSize(text("picture"), QSizeF(24.5, 20));
    Bar bar(Qt::Horizontal, QSize(600, 40));
    bar.AddNormalSwitch(text("abc"));
    bar.AddSeparator(7);
    bar.AddImageSwitch(text("i"), text("picture"), {});
    bar.AddNormalSwitch(text("ab"), {}, true);
    QCOMPARE(rects(bar.items), (Rects{{0, 0, 60, 40}, {60, 0, 7, 40}, {67, 0, 24, 40}}));
    bar.setItemSize(219);
    QCOMPARE(rects(bar.items), (Rects{{0, 0, 60, 40}, {60, 0, 30, 40}, {90, 0, 24.5, 40}}));
    QCOMPARE(rects(bar.endItems), (Rects{{550, 0, 50, 40}}));
    QCOMPARE(bar.AddNormalSwitch(text("d"))->rect, QRectF(114.5, 0, 219, 40));
    bar.SetPadding(QMarginsF(1, 0, 2, 0));
    QCOMPARE(rects(bar.items),
             (Rects{{0, 0, 63, 40}, {63, 0, 33, 40}, {96, 0, 27.5, 40}, {123.5, 0, 43, 40}}));
    QCOMPARE(rects(bar.endItems), (Rects{{547, 0, 53, 40}}));
    QCOMPARE(bar.itemSize, 219);
}

void tst_SwitchEx::threePageGroupsFitExactly()
{
    Bar bar(Qt::Horizontal, QSize(657, 60));
    bar.changeMode(CSwitchEx::ModeNavButton);
    bar.setItemSize(219);
    const auto items = bar.add(3);
    QCOMPARE(rects(items), (Rects{{0, 0, 219, 60}, {219, 0, 219, 60}, {438, 0, 219, 60}}));
    QVERIFY(!bar.moreShown);
    QCOMPARE(bar.visibleCount, 3);
    QCOMPARE(bar.GetMaximumSize(), 657.0);
    QCOMPARE(bar.GetMinimumSize(), 257.0);

    // One pixel less: the buttons begin at 618 and leave room for two.
    bar.resize(656, 60);
    QVERIFY(bar.moreShown);
    QCOMPARE(bar.moreRect, QRectF(618, 0, 38, 60));
    QCOMPARE(bar.firstIndex, 0);
    QCOMPARE(bar.visibleCount, 2);
    QCOMPARE(items[2]->rect, QRectF(438, 0, 219, 60));

    bar.resize(657, 60);
    QVERIFY(!bar.moreShown);
    QCOMPARE(bar.moreRect, QRectF());
    QCOMPARE(bar.visibleCount, 3);
}

void tst_SwitchEx::aFractionOfAPixelOverflows()
{
    RecordingSkin::setTextSize([](const QString&, const QString&) { return QSizeF(20.0625, 10); });
    Bar bar(Qt::Horizontal, QSize(100, 40));
    bar.add(2);
    QVERIFY(bar.moreShown);
    QCOMPARE(bar.visibleCount, 1);
    QCOMPARE(bar.moreRect, QRectF(62, 0, 38, 40));
}

void tst_SwitchEx::everythingFits()
{
    Bar bar(Qt::Horizontal, QSize(500, 40), QMargins(1, 2, 3, 4));
    const auto ends = bar.add(2, "e", true);
    const auto mains = bar.add(3, "m");
    // 20 + 30 + 4 each; tops stay where they are.
    QCOMPARE(rects(mains), (Rects{{0, 0, 54, 40}, {54, 0, 54, 40}, {108, 0, 54, 40}}));
    QCOMPARE(rects(ends), (Rects{{446, 0, 54, 40}, {392, 0, 54, 40}}));
    QCOMPARE(bar.visibleCount, 3);

    mains[1]->rect.moveTop(7);
    ends[0]->rect.moveTop(-3);
    bar.resize(510, 44);
    QCOMPARE(rects(mains), (Rects{{0, 0, 54, 44}, {54, 7, 54, 44}, {108, 0, 54, 44}}));
    QCOMPARE(rects(ends), (Rects{{456, -3, 54, 44}, {402, 0, 54, 44}}));
}

void tst_SwitchEx::everythingFitsInAColumn()
{
    Bar bar(Qt::Vertical, QSize(40, 300), QMargins(1, 2, 3, 4));
    const auto ends = bar.add(2, "e", true);
    const auto mains = bar.add(3, "m");
    QCOMPARE(rects(mains), (Rects{{0, 0, 40, 32}, {0, 32, 40, 32}, {0, 64, 40, 32}}));
    QCOMPARE(rects(ends), (Rects{{0, 268, 40, 32}, {0, 236, 40, 32}}));
    QCOMPARE(bar.visibleCount, 3);
    QCOMPARE(bar.GetMaximumSize(), 160.0);
    QCOMPARE(bar.GetMinimumSize(), 134.0);

    mains[1]->rect.moveLeft(7);
    ends[1]->rect.moveLeft(-3);
    bar.resize(44, 310);
    QCOMPARE(rects(mains), (Rects{{0, 0, 44, 32}, {7, 32, 44, 32}, {0, 64, 44, 32}}));
    QCOMPARE(rects(ends), (Rects{{0, 278, 44, 32}, {-3, 246, 44, 32}}));
}

// 500 wide, end items of 60 and 40: the buttons lie at 362 to 400.
void tst_SwitchEx::overflow()
{
    Bar bar(Qt::Horizontal, QSize(500, 40));
    bar.setItemSize(60);
    const SwitchItem* const outer = bar.AddNormalSwitch(text("o"), {}, true);
    bar.setItemSize(0);
    const SwitchItem* const inner = bar.AddSeparator(40, true);
    // Measured again by its content when the size was set back.
    QCOMPARE(outer->rect, QRectF(460, 0, 40, 40));
    QCOMPARE(inner->rect, QRectF(420, 0, 40, 40));
    bar.setItemSize(100);
    // The separator is measured by then: 30.
    QCOMPARE(inner->rect, QRectF(430, 0, 30, 40));
    const auto items = bar.add(6);
    QCOMPARE(bar.moreRect, QRectF(392, 0, 38, 40));
    QVERIFY(bar.moreShown);
    QCOMPARE(bar.visibleCount, 3);
    QCOMPARE(bar.firstIndex, 0);
    // The fourth was placed while everything still fitted, the others never.
    QCOMPARE(rects(items),
             (Rects{{0, 0, 100, 40},
                    {100, 0, 100, 40},
                    {200, 0, 100, 40},
                    {300, 0, 100, 40},
                    {0, 0, 100, 40},
                    {0, 0, 100, 40}}));
    QCOMPARE(bar.GetMaximumSize(), 670.0);
    QCOMPARE(bar.GetMinimumSize(), 208.0);

    // An item that ends exactly at the buttons is shown.
    bar.resize(508, 40);
    QCOMPARE(bar.moreRect, QRectF(400, 0, 38, 40));
    QCOMPARE(bar.visibleCount, 4);
    bar.resize(507, 40);
    QCOMPARE(bar.visibleCount, 3);

    // No room at all.
    bar.resize(150, 40);
    QCOMPARE(bar.moreRect, QRectF(42, 0, 38, 40));
    QCOMPARE(bar.visibleCount, 0);
    QCOMPARE(outer->rect, QRectF(110, 0, 40, 40));
    bar.resize(20, 40);
    QCOMPARE(bar.moreRect, QRectF(-88, 0, 38, 40));
    QCOMPARE(bar.visibleCount, 0);
}

void tst_SwitchEx::overflowOfAColumn()
{
    Bar bar(Qt::Vertical, QSize(40, 500));
    const auto ends = bar.add(2, "e", true);
    bar.setItemSize(100);
    const auto items = bar.add(6);
    QCOMPARE(rects(ends), (Rects{{0, 474, 40, 26}, {0, 448, 40, 26}}));
    QCOMPARE(bar.moreRect, QRectF(0, 410, 40, 38));
    QCOMPARE(bar.visibleCount, 4);
    QCOMPARE(rects(items).mid(0, 4),
             (Rects{{0, 0, 40, 100}, {0, 100, 40, 100}, {0, 200, 40, 100}, {0, 300, 40, 100}}));
    bar.resize(50, 489);
    QCOMPARE(bar.moreRect, QRectF(0, 399, 50, 38));
    QCOMPARE(bar.visibleCount, 3);
    QCOMPARE(rects(items).mid(0, 5),
             (Rects{{0, 0, 50, 100},
                    {0, 100, 50, 100},
                    {0, 200, 50, 100},
                    {0, 300, 40, 100},
                    {0, 0, 40, 100}}));
    bar.resize(50, 490);
    QCOMPARE(bar.visibleCount, 4);
}

void tst_SwitchEx::scrolling()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    bar.setItemSize(100);
    const auto items = bar.add(4);
    QCOMPARE(bar.moreRect, QRectF(262, 0, 38, 40));
    QCOMPARE(bar.visibleCount, 2);
    const QPointF back(263, 20);
    const QPointF forward(299, 20);

    bar.click(back);
    QCOMPARE(bar.firstIndex, 0);
    bar.press(forward);
    QCOMPARE(bar.firstIndex, 0);
    bar.release(forward);
    QCOMPARE(bar.firstIndex, 1);
    // Items that scrolled out keep their cells, as the one does that never came in.
    QCOMPARE(rects(items),
             (Rects{{0, 0, 100, 40}, {0, 0, 100, 40}, {100, 0, 100, 40}, {0, 0, 100, 40}}));
    bar.click(forward);
    QCOMPARE(bar.firstIndex, 2);
    QCOMPARE(bar.visibleCount, 2);
    QCOMPARE(rects(items),
             (Rects{{0, 0, 100, 40}, {0, 0, 100, 40}, {0, 0, 100, 40}, {100, 0, 100, 40}}));
    bar.click(forward);
    QCOMPARE(bar.firstIndex, 2);
    bar.click(back);
    QCOMPARE(bar.firstIndex, 1);
    // The centre belongs to the forward half, the edges to the area.
    bar.click(QPointF(280.75, 40));
    QCOMPARE(bar.firstIndex, 0);
    bar.click(QPointF(281, 0));
    QCOMPARE(bar.firstIndex, 1);
    bar.click(QPointF(262, 0));
    QCOMPARE(bar.firstIndex, 0);
    // A release with another button scrolls nothing.
    bar.release(forward, Qt::RightButton);
    QCOMPARE(bar.firstIndex, 0);
    QVERIFY(!bar.curSel);
}

void tst_SwitchEx::scrollingAColumn()
{
    Bar bar(Qt::Vertical, QSize(100, 300));
    bar.setItemSize(100);
    const auto items = bar.add(4);
    QCOMPARE(bar.moreRect, QRectF(0, 262, 100, 38));
    bar.click(QPointF(20, 281));
    QCOMPARE(bar.firstIndex, 1);
    bar.click(QPointF(1, 300));
    QCOMPARE(bar.firstIndex, 2);
    QCOMPARE(rects(items),
             (Rects{{0, 0, 100, 100}, {0, 0, 100, 100}, {0, 0, 100, 100}, {0, 100, 100, 100}}));
    bar.click(QPointF(100, 300));
    QCOMPARE(bar.firstIndex, 2);
    bar.click(QPointF(99, 280));
    QCOMPARE(bar.firstIndex, 1);
    bar.click(QPointF(0, 262));
    bar.click(QPointF(0, 262));
    QCOMPARE(bar.firstIndex, 0);
}

void tst_SwitchEx::aNarrowColumnNeverReachesItsEnd()
{
    // 200 and a width of 40 are less than 262: the layout takes the last step back.
    Bar bar(Qt::Vertical, QSize(40, 300));
    bar.setItemSize(100);
    bar.add(4);
    bar.DoClickMoreItem(false);
    QCOMPARE(bar.firstIndex, 1);
    bar.DoClickMoreItem(false);
    QCOMPARE(bar.firstIndex, 1);
    QCOMPARE(bar.visibleCount, 2);
}

void tst_SwitchEx::wideningPullsEarlierItemsBack()
{
    Bar bar(Qt::Horizontal, QSize(338, 40));
    bar.setItemSize(100);
    const auto items = bar.add(5);
    bar.DoClickMoreItem(false);
    bar.DoClickMoreItem(false);
    QCOMPARE(bar.firstIndex, 2);
    QCOMPARE(bar.visibleCount, 3);
    // 400 are not less than 400.
    bar.resize(438, 40);
    QCOMPARE(bar.firstIndex, 2);
    QCOMPARE(bar.visibleCount, 3);
    bar.resize(439, 40);
    QCOMPARE(bar.firstIndex, 1);
    QCOMPARE(bar.visibleCount, 4);
    QCOMPARE(items[1]->rect, QRectF(0, 0, 100, 40));
    QCOMPARE(items[4]->rect, QRectF(300, 0, 100, 40));
    // Narrowing does not scroll.
    bar.resize(238, 40);
    QCOMPARE(bar.firstIndex, 1);
    QCOMPARE(bar.visibleCount, 2);
    bar.resize(500, 40);
    QCOMPARE(bar.firstIndex, 0);
    QCOMPARE(bar.visibleCount, 5);
    QVERIFY(!bar.moreShown);
}

void tst_SwitchEx::aColumnComparesTheWidth()
{
    // Items of 100 in a column 40 wide, the last three of five shown.
    Bar bar(Qt::Vertical, QSize(40, 338));
    bar.setItemSize(100);
    const auto items = bar.add(5);
    bar.DoClickMoreItem(false);
    bar.DoClickMoreItem(false);
    QCOMPARE(bar.firstIndex, 2);
    bar.resize(40, 378);
    QCOMPARE(bar.firstIndex, 2);
    QCOMPARE(bar.visibleCount, 3);
    // 300 + 40 < 341 pulls an item back that takes 100: the last drops out.
    bar.resize(40, 379);
    QCOMPARE(bar.firstIndex, 1);
    QCOMPARE(bar.visibleCount, 3);
    QCOMPARE(items[1]->rect, QRectF(0, 0, 40, 100));
    QCOMPARE(items[3]->rect, QRectF(0, 200, 40, 100));
    QCOMPARE(items[4]->rect, QRectF(0, 200, 40, 100));
}

void tst_SwitchEx::aNarrowColumnGoesBackToItsFirstItem()
{
    // Scrolled by one, 200 + 20 < 242 pulls even the first item of three back.
    Bar bar(Qt::Vertical, QSize(20, 280));
    bar.setItemSize(100);
    bar.add(3);
    bar.DoClickMoreItem(false);
    QCOMPARE(bar.firstIndex, 0);
    QCOMPARE(bar.visibleCount, 2);
}

void tst_SwitchEx::severalItemsComeBackAtOnce()
{
    Bar bar(Qt::Horizontal, QSize(138, 40));
    bar.setItemSize(50);
    bar.add(8);
    for (int i = 0; i < 6; ++i)
        bar.DoClickMoreItem(false);
    QCOMPARE(bar.firstIndex, 6);
    QCOMPARE(bar.visibleCount, 2);
    // 263 hold five, the strict comparison takes them all: 250 < 263.
    bar.resize(301, 40);
    QCOMPARE(bar.firstIndex, 3);
    QCOMPARE(bar.visibleCount, 5);
}

void tst_SwitchEx::equalDivision()
{
    Bar bar(Qt::Horizontal, QSize(400, 40), QMargins(5, 5, 5, 5));
    const auto mains = bar.add(2, "m");
    const auto end = bar.AddSeparator(3, true);
    QCOMPARE(bar.visibleCount, 2);
    bar.changeMode(CSwitchEx::ModeSwitch);
    const auto more = bar.AddNormalSwitch(text("x"));
    QCOMPARE(rects(mains), (Rects{{0, 0, 100, 40}, {100, 0, 100, 40}}));
    QCOMPARE(more->rect, QRectF(200, 0, 100, 40));
    QCOMPARE(end->rect, QRectF(300, 0, 100, 40));
    QCOMPARE(bar.visibleCount, 2);
    bar.resize(200, 30);
    QCOMPARE(more->rect, QRectF(100, 0, 50, 30));
    QCOMPARE(end->rect, QRectF(150, 0, 50, 30));
    // Real numbers, and no scroll buttons whatever the items would take.
    bar.resize(90, 30);
    QCOMPARE(mains[1]->rect, QRectF(22.5, 0, 22.5, 30));
    QVERIFY(!bar.moreShown);
    QCOMPARE(bar.visibleCount, 2);
}

void tst_SwitchEx::equalDivisionFillsFromBothEnds()
{
    Bar bar(Qt::Horizontal, QSize(500, 40));
    bar.changeMode(CSwitchEx::ModeSwitch);
    const auto ends = bar.add(3, "e", true);
    const auto mains = bar.add(2, "m");
    QCOMPARE(rects(mains), (Rects{{0, 0, 100, 40}, {100, 0, 100, 40}}));
    QCOMPARE(rects(ends), (Rects{{400, 0, 100, 40}, {300, 0, 100, 40}, {200, 0, 100, 40}}));

    Bar column(Qt::Vertical, QSize(40, 500));
    column.changeMode(CSwitchEx::ModeSwitch);
    const auto lower = column.add(3, "e", true);
    const auto upper = column.add(2, "m");
    QCOMPARE(rects(upper), (Rects{{0, 0, 40, 100}, {0, 100, 40, 100}}));
    QCOMPARE(rects(lower), (Rects{{0, 400, 40, 100}, {0, 300, 40, 100}, {0, 200, 40, 100}}));
    QCOMPARE(column.visibleCount, 0);
}

void tst_SwitchEx::equalDivisionScrollsBackButKeepsTheCount()
{
    Bar bar(Qt::Horizontal, QSize(238, 40));
    bar.setItemSize(100);
    const auto items = bar.add(5);
    bar.DoClickMoreItem(false);
    QCOMPARE(bar.firstIndex, 1);
    QCOMPARE(bar.visibleCount, 2);
    bar.changeMode(CSwitchEx::ModeSwitch);
    QCOMPARE(bar.firstIndex, 0);
    QCOMPARE(bar.visibleCount, 2);
    QVERIFY(!bar.moreShown);
    QCOMPARE(bar.moreRect, QRectF(200, 0, 38, 40));
    // The area of buttons that are not shown belongs to the items.
    QCOMPARE(bar.HitTest(QPointF(219, 20), true), items[4]);
    QCOMPARE(bar.firstIndex, 0);
}

void tst_SwitchEx::changingModeAndOrientationDoesNotMeasure()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    bar.setFocusPolicy(Qt::StrongFocus);
    const auto items = bar.add(2);
    RecordingSkin::takeMeasurements();
    bar.changeMode(CSwitchEx::ModeFlatBlue);
    QCOMPARE(bar.mode, CSwitchEx::ModeFlatBlue);
    QCOMPARE(bar.focusPolicy(), Qt::NoFocus);
    bar.setOrientation(Qt::Vertical);
    QCOMPARE(bar.orientation, Qt::Vertical);
    // 40 + 40 do not fit into 40 now: the buttons begin at 2.
    QCOMPARE(bar.moreRect, QRectF(0, 2, 300, 38));
    QCOMPARE(bar.visibleCount, 0);
    QCOMPARE(rects(items), (Rects{{0, 0, 50, 40}, {50, 0, 50, 40}}));
    bar.resize(300, 80);
    QCOMPARE(rects(items), (Rects{{0, 0, 300, 40}, {50, 40, 300, 40}}));
    QCOMPARE(RecordingSkin::takeMeasurements(), QStringList());
}

void tst_SwitchEx::anEmptyBarIgnoresLayout()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    bar.firstIndex = 3;
    bar.visibleCount = 4;
    bar.moreShown = true;
    bar.moreRect = QRectF(1, 2, 3, 4);
    for (const int mode : {1, 2, 7}) {
        bar.changeMode(CSwitchEx::SwitchMode(mode));
        bar.resize(200 + mode, 40);
        bar.setItemSize(mode);
        bar.ReLayout();
    }
    QCOMPARE(bar.firstIndex, 3);
    QCOMPARE(bar.visibleCount, 4);
    QVERIFY(bar.moreShown);
    QCOMPARE(bar.moreRect, QRectF(1, 2, 3, 4));
    QCOMPARE(bar.GetMaximumSize(), 0.0);
    QCOMPARE(bar.GetMinimumSize(), 38.0);
}

void tst_SwitchEx::hitTesting()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    bar.setItemSize(100);
    const auto mains = bar.add(2);
    const auto separator = bar.AddSeparator(20);
    const auto end = bar.AddSeparator(30, true);
    const auto hit = [&](double x, double y) { return bar.HitTest(QPointF(x, y), false); };
    QCOMPARE(hit(0, 0), mains[0]);
    QCOMPARE(hit(50, 40), mains[0]);
    QCOMPARE(hit(100, 20), mains[0]); // the shared edge
    QCOMPARE(hit(100.5, 20), mains[1]);
    QCOMPARE(hit(200, 20), mains[1]);
    QCOMPARE(hit(201, 20), separator);
    QCOMPARE(hit(220, 20), separator);
    QVERIFY(!hit(221, 20));
    QVERIFY(!hit(269.5, 20));
    QCOMPARE(hit(270, 20), end);
    QCOMPARE(hit(300, 20), end);
    QVERIFY(!hit(301, 20));
    QVERIFY(!hit(-1, 20));
    QVERIFY(!hit(50, 40.5));
    QVERIFY(!hit(50, -0.5));
    // End items come first.
    end->rect = QRectF(50, 0, 100, 40);
    QCOMPARE(hit(60, 20), end);
    // Of end items on one place the one added first.
    const auto second = bar.AddSeparator(1, true);
    end->rect = second->rect = QRectF(50, 0, 100, 40);
    QCOMPARE(hit(60, 20), end);
}

void tst_SwitchEx::hitTestingBeyondTheItemsShown()
{
    Bar bar(Qt::Horizontal, QSize(138, 40));
    bar.setItemSize(50);
    const auto items = bar.add(5);
    QCOMPARE(bar.visibleCount, 2);
    // Items that were never placed stand at 0, behind the first item in the list.
    const auto hit = [&](double x) { return bar.HitTest(QPointF(x, 20), false); };
    QCOMPARE(items[4]->rect, QRectF(0, 0, 50, 40));
    QCOMPARE(hit(20), items[0]);
    items[4]->rect.moveLeft(300);
    QCOMPARE(hit(320), items[4]);
    // Before the first shown none is hit.
    bar.DoClickMoreItem(false);
    items[0]->rect.moveLeft(600);
    QVERIFY(!hit(620));
    QCOMPARE(hit(320), items[4]);
    // The scroll buttons come before the items under them, but only while they are shown.
    items[4]->rect.moveLeft(100);
    QVERIFY(!hit(120));
    bar.moreShown = false;
    QCOMPARE(hit(120), items[4]);
}

void tst_SwitchEx::aPressSelectsAndAReleaseRuns()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    bar.setItemSize(100);
    QStringList log;
    const auto a = bar.AddNormalSwitch(text("a"), [&] { log << text("a"); });
    const auto b = bar.AddNormalSwitch(text("b"), [&] { log << text("b"); });
    bar.AddNormalSwitch(text("silent"));

    bar.press({50, 20});
    QCOMPARE(bar.curSel, a);
    QCOMPARE(log, QStringList());
    bar.release({50, 20});
    QCOMPARE(log, QStringList{text("a")});
    // Released elsewhere: selected, not run.
    bar.press({150, 20});
    QCOMPARE(bar.curSel, b);
    bar.release({50, 20});
    QCOMPARE(bar.curSel, b);
    bar.press({50, 20});
    bar.release({50, 100});
    QCOMPARE(bar.curSel, a);
    QCOMPARE(log, QStringList{text("a")});
    // A release needs no press before it, only the selection.
    bar.release({20, 20});
    QCOMPARE(log, (QStringList{text("a"), text("a")}));
    // Without an action nothing happens.
    bar.click({250, 20});
    QCOMPARE(bar.curSel->label, text("silent"));
    // Other buttons do nothing.
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        bar.press({50, 20}, button);
        bar.release({50, 20}, button);
        bar.release({250, 20}, button);
    }
    QCOMPARE(bar.curSel->label, text("silent"));
    // A press beside all items keeps the selection.
    bar.click({50, 100});
    QCOMPARE(bar.curSel->label, text("silent"));
    QCOMPARE(log.size(), 2);
}

void tst_SwitchEx::aDoubleClickCountsTwice()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    int runs = 0;
    bar.AddNormalSwitch(text("a"), [&] { ++runs; });
    QTest::mouseClick(&bar, Qt::LeftButton, {}, {10, 10});
    QTest::mouseDClick(&bar, Qt::LeftButton, {}, {10, 10});
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, {10, 10});
    QCOMPARE(runs, 2);
}

void tst_SwitchEx::aPressDoesNotSelectASeparator()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    int runs = 0;
    const auto a = bar.AddNormalSwitch(text("a"), [&] { ++runs; });
    const auto separator = bar.AddSeparator(50);
    separator->callback = [&] { ++runs; };
    bar.SetCurSel(a, false);
    bar.click({60, 20});
    QCOMPARE(bar.curSel, a);
    QCOMPARE(runs, 0);
    bar.move({60, 20});
    QCOMPARE(bar.hoverItem, separator);
}

void tst_SwitchEx::theProgramSelectsASeparator()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    int runs = 0;
    const auto separator = bar.AddSeparator(50);
    separator->callback = [&] { ++runs; };
    bar.SetCurSel(separator, false);
    QCOMPARE(bar.curSel, separator);
    QCOMPARE(runs, 0);
    bar.SetCurSel(separator, true);
    QCOMPARE(bar.curSel, separator);
    QCOMPARE(runs, 1);
}

void tst_SwitchEx::hovering()
{
    Bar bar(Qt::Horizontal, QSize(138, 40));
    bar.setItemSize(50);
    const auto items = bar.add(3);
    bar.move({20, 20});
    QCOMPARE(bar.hoverItem, items[0]);
    bar.move({80, 20}, Qt::RightButton);
    QCOMPARE(bar.hoverItem, items[1]);
    bar.move({120, 20});
    QVERIFY(!bar.hoverItem);
    QCOMPARE(bar.firstIndex, 0);
    bar.move({80, 20}, Qt::LeftButton);
    QCOMPARE(bar.hoverItem, items[1]);
    bar.leave();
    QVERIFY(!bar.hoverItem);
    QVERIFY(!bar.curSel);
}

void tst_SwitchEx::theSelectionOutlivesScrolling()
{
    Bar bar(Qt::Horizontal, QSize(138, 40));
    bar.setItemSize(50);
    const auto items = bar.add(5);
    bar.click({20, 20});
    bar.DoClickMoreItem(false);
    bar.DoClickMoreItem(false);
    QCOMPARE(bar.curSel, items[0]);
}

void tst_SwitchEx::selectingFromTheProgram()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    int runs = 0;
    const auto a = bar.AddNormalSwitch(text("a"), [&] { ++runs; });
    const auto e = bar.AddNormalSwitch(
        text("e"), [&] { runs += 10; }, true);
    QString label = text("untouched");
    QVERIFY(!bar.GetCurSel(label));
    QCOMPARE(label, text("untouched"));
    bar.SetCurSel(a, false);
    QCOMPARE(runs, 0);
    QCOMPARE(bar.GetCurSel(label), a);
    QCOMPARE(label, text("a"));
    bar.SetCurSel(e, true);
    QCOMPARE(runs, 10);
    QCOMPARE(bar.GetCurSel(label), e);
    QCOMPARE(label, text("e"));
    SwitchItem stranger;
    stranger.callback = [&] { runs = 1000; };
    bar.SetCurSel(&stranger, true);
    bar.SetCurSel(nullptr, true);
    QCOMPARE(bar.curSel, e);
    QCOMPARE(runs, 10);
    bar.SetItemLabel(&stranger, text("x"));
    bar.SetItemLabel(nullptr, text("x"));
    QVERIFY(stranger.label.isEmpty());
}

void tst_SwitchEx::modifying()
{
    Bar bar(Qt::Horizontal, QSize(400, 40));
    int runs = 0;
    const auto end = bar.AddNormalSwitch(text("same"), {}, true);
    const auto first = bar.AddNormalSwitch(text("same"));
    const auto second = bar.AddNormalSwitch(text("same"));
    const auto image = bar.AddImageSwitch(text("image"), text("i"), text("s"));
    const Rects before = rects(bar.items) + rects(bar.endItems);
    RecordingSkin::takeMeasurements();

    QVERIFY(bar.ModifySwitch(text("same"), text("a much longer label"), [&] { ++runs; }));
    QCOMPARE(first->label, text("a much longer label"));
    first->callback();
    QCOMPARE(runs, 1);
    QCOMPARE(second->label, text("same"));
    QCOMPARE(end->label, text("same"));
    QVERIFY(bar.ModifySwitch(text("same"), text("b"), {}));
    QCOMPARE(second->label, text("b"));
    QCOMPARE(end->label, text("same"));
    QVERIFY(bar.ModifySwitch(text("same"), text("c"), {}));
    QCOMPARE(end->label, text("c"));
    QVERIFY(!bar.ModifySwitch(text("same"), text("d"), {}));
    QVERIFY(!bar.ModifySwitch(text("B"), text("d"), {}));

    QVERIFY(bar.ModifyImageSwitch(text("image"), text("new"), text("i2"), text("s2"),
                                  [&] { runs += 10; }));
    QCOMPARE(image->label, text("new"));
    QCOMPARE(image->image, text("i2"));
    QCOMPARE(image->selImage, text("s2"));
    image->callback();
    QCOMPARE(runs, 11);
    QVERIFY(!bar.ModifyImageSwitch(text("image"), text("x"), {}, {}, {}));
    QCOMPARE(image->label, text("new"));
    // An item without images takes them all the same, and stays one.
    QVERIFY(bar.ModifyImageSwitch(text("b"), text("b2"), text("i3"), {}, {}));
    QCOMPARE(second->image, text("i3"));
    QVERIFY(!second->isImage);

    bar.SetItemLabel(end, text("end"));
    QCOMPARE(end->label, text("end"));
    bar.SetItemLabel(first, text("f"));
    QCOMPARE(first->label, text("f"));
    QCOMPARE(rects(bar.items) + rects(bar.endItems), before);
    QCOMPARE(RecordingSkin::takeMeasurements(), QStringList());
}

void tst_SwitchEx::clearing()
{
    Bar bar(Qt::Horizontal, QSize(138, 40), QMargins(1, 2, 3, 4));
    bar.setItemSize(50);
    bar.changeMode(CSwitchEx::ModeNavButton);
    bar.add(5);
    bar.add(1, "e", true);
    bar.DoClickMoreItem(false);
    bar.click({5, 20});
    bar.move({5, 20});
    QVERIFY(bar.curSel && bar.hoverItem && bar.moreShown && bar.firstIndex == 1);
    const int shown = bar.visibleCount;
    bar.ClearAll();
    QVERIFY(bar.items.isEmpty());
    QVERIFY(bar.endItems.isEmpty());
    QCOMPARE(bar.firstIndex, 0);
    QVERIFY(!bar.curSel);
    QVERIFY(!bar.hoverItem);
    QVERIFY(!bar.moreShown);
    QCOMPARE(bar.moreRect, QRectF(0, 0, 0, 0));
    QCOMPARE(bar.visibleCount, shown);
    QCOMPARE(bar.itemSize, 50);
    QCOMPARE(bar.mode, CSwitchEx::ModeNavButton);
    QCOMPARE(bar.padding, QMarginsF(1, 2, 3, 4));
    bar.click({5, 20});
    bar.move({5, 20});
    bar.DoClickItem();
    QVERIFY(!bar.curSel);

    QCOMPARE(bar.add(1).first()->rect, QRectF(0, 0, 50, 40));
    QCOMPARE(bar.visibleCount, 1);
}

void tst_SwitchEx::clearingFreesTheItems()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    const auto held = std::make_shared<int>();
    for (const bool atEnd : {false, true})
        bar.AddNormalSwitch(
            text("x"), [held] {}, atEnd);
    QCOMPARE(held.use_count(), 3L);
    bar.ClearAll();
    QCOMPARE(held.use_count(), 1L);
}

void tst_SwitchEx::theDestructorFreesNoItems()
{
    auto bar = std::make_unique<CSwitchEx>(nullptr, Qt::Horizontal, QMargins());
    const std::unique_ptr<SwitchItem> main(bar->AddNormalSwitch(text("main")));
    const std::unique_ptr<SwitchItem> end(bar->AddNormalSwitch(text("end"), {}, true));
    bar.reset();
    QCOMPARE(main->label, text("main"));
    QCOMPARE(end->label, text("end"));
}

void tst_SwitchEx::anActionMayClearOrDeleteTheBar()
{
    auto bar = std::make_unique<Bar>(Qt::Horizontal, QSize(300, 40));
    const QString word = text("kept until the action ends");
    QString seen;
    SwitchItem* item = bar->AddNormalSwitch(text("clear"), [&, word] {
        bar->ClearAll();
        seen = word;
    });
    bar->click({10, 10});
    QCOMPARE(seen, word);
    QVERIFY(!bar->curSel);
    item = bar->AddNormalSwitch(text("delete"), [&] { bar.reset(); });
    bar->SetCurSel(item, true);
    QVERIFY(!bar);

    bar = std::make_unique<Bar>(Qt::Horizontal, QSize(300, 40));
    bar->AddNormalSwitch(text("delete"), [&] { bar.reset(); });
    bar->curSel = bar->items.first();
    bar->DoClickItem();
    QVERIFY(!bar);
}

// A menu of 100 x 60 on a screen of 800 x 600; items of 50 x 40, or 40 x 50 in the column.
void tst_SwitchEx::menus_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QPoint>("bar");
    QTest::addColumn<int>("item");
    QTest::addColumn<QPoint>("menu");

    QTest::newRow("below") << Qt::Horizontal << QPoint(100, 200) << 0 << QPoint(100, 240);
    QTest::newRow("below the second")
        << Qt::Horizontal << QPoint(100, 200) << 1 << QPoint(150, 240);
    QTest::newRow("just fits") << Qt::Horizontal << QPoint(100, 500) << 1 << QPoint(150, 540);
    QTest::newRow("upwards") << Qt::Horizontal << QPoint(100, 501) << 1 << QPoint(150, 441);
    QTest::newRow("right") << Qt::Vertical << QPoint(100, 200) << 0 << QPoint(140, 200);
    QTest::newRow("right of the second")
        << Qt::Vertical << QPoint(100, 200) << 1 << QPoint(140, 250);
    QTest::newRow("column, just fits") << Qt::Vertical << QPoint(100, 490) << 1 << QPoint(140, 540);
    QTest::newRow("column, upwards") << Qt::Vertical << QPoint(100, 491) << 1 << QPoint(140, 531);
    // What the screen cuts at the right goes upwards as well; the menu itself then moves in.
    QTest::newRow("right edge") << Qt::Horizontal << QPoint(680, 300) << 1 << QPoint(-1, 240);
}

void tst_SwitchEx::menus()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QPoint, bar);
    QFETCH(int, item);
    QFETCH(QPoint, menu);
    QCOMPARE(QGuiApplication::primaryScreen()->availableGeometry(), QRect(0, 0, 800, 600));
    Bar strip(orientation, orientation == Qt::Horizontal ? QSize(120, 40) : QSize(40, 120));
    strip.shownParent.move(bar);
    strip.setItemSize(50);
    QMenu popup;
    popup.setFixedSize(100, 60);
    popup.addAction(text("x"));
    int runs = 0;
    strip.AddNormalSwitch(
        text("a"), [&] { ++runs; }, false, &popup);
    strip.AddNormalSwitch(
        text("b"), [&] { ++runs; }, false, &popup);
    const QPointF centre = strip.items[item]->rect.center();
    strip.press(centre);
    QVERIFY(!popup.isVisible());
    strip.release(centre);
    QVERIFY(popup.isVisible());
    QCOMPARE(popup.size(), QSize(100, 60));
    QCOMPARE(popup.y(), menu.y());
    if (menu.x() >= 0)
        QCOMPARE(popup.x(), menu.x());
    QCOMPARE(runs, 0);
    popup.hide();

    // From the program as well.
    strip.SetCurSel(strip.items[item], false);
    QVERIFY(!popup.isVisible());
    strip.SetCurSel(strip.items[item], true);
    QVERIFY(popup.isVisible());
    QCOMPARE(popup.y(), menu.y());
    popup.hide();
}

void tst_SwitchEx::theMenuIsSizedByItsContents()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    bar.shownParent.move(100, 540);
    QMenu menu;
    menu.addAction(text("one"));
    menu.addAction(text("two"));
    menu.resize(3, 3);
    bar.SetCurSel(bar.AddNormalSwitch(text("a"), {}, false, &menu), true);
    QVERIFY(menu.height() > 20);
    QCOMPARE(menu.size(), menu.sizeHint());
    QCOMPARE(menu.y() + menu.height(), 540);
    menu.hide();
}

void tst_SwitchEx::cornersAreRounded()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    bar.shownParent.move(100, 200);
    QMenu menu;
    menu.setFixedSize(100, 60);
    menu.addAction(text("x"));
    SwitchItem* const item = bar.AddNormalSwitch(text("a"), {}, false, &menu);
    item->rect = QRectF(10.5, 0, 50, 39.75);
    bar.SetCurSel(item, true);
    QCOMPARE(menu.pos(), QPoint(111, 240));
    menu.hide();
    item->rect = QRectF(10.25, 0, 50, 39.25);
    bar.SetCurSel(item, true);
    QCOMPARE(menu.pos(), QPoint(110, 239));
    menu.hide();
    bar.shownParent.move(100, 560);
    item->rect = QRectF(10.75, 0.75, 50, 39.25);
    bar.SetCurSel(item, true);
    QCOMPARE(menu.pos(), QPoint(111, 501));
    menu.hide();
}

void tst_SwitchEx::anEmptyMenuDoesNothing()
{
    Bar bar(Qt::Horizontal, QSize(300, 40));
    QMenu menu;
    int runs = 0;
    const auto item = bar.AddNormalSwitch(
        text("a"), [&] { ++runs; }, false, &menu);
    bar.click({10, 10});
    QCOMPARE(bar.curSel, item);
    QCOMPARE(runs, 0);
    QVERIFY(!menu.isVisible());
    UpdateCounter counter(bar);
    bar.DoClickItem();
    QCOMPARE(counter.take(), 0);
}

void tst_SwitchEx::repaints()
{
    Bar bar(Qt::Horizontal, QSize(138, 40));
    bar.setItemSize(50);
    const auto items = bar.add(3);
    SwitchItem stranger;
    QString label;
    UpdateCounter counter(bar);
    const auto repainted = [&](const auto& act) {
        act();
        return counter.take();
    };
    QCOMPARE(repainted([&] { bar.changeMode(CSwitchEx::ModeNavButton); }), 1);
    QCOMPARE(repainted([&] { bar.setOrientation(Qt::Horizontal); }), 1);
    QCOMPARE(repainted([&] { bar.setItemSize(50); }), 1);
    QCOMPARE(repainted([&] { bar.setBackgroundColorEnable(false); }), 1);
    QVERIFY(!bar.backgroundEnable);
    QCOMPARE(repainted([&] { bar.SetPadding(QMarginsF()); }), 1);
    QCOMPARE(repainted([&] { bar.AddNormalSwitch(text("n")); }), 1);
    QCOMPARE(repainted([&] { bar.AddImageSwitch(text("n"), {}, {}); }), 1);
    QCOMPARE(repainted([&] { bar.AddSeparator(50); }), 1);
    QCOMPARE(repainted([&] { bar.ModifySwitch(text("i0"), text("j0"), {}); }), 1);
    QCOMPARE(repainted([&] { bar.ModifyImageSwitch(text("j0"), text("i0"), {}, {}, {}); }), 1);
    QCOMPARE(repainted([&] { bar.SetItemLabel(items[0], text("i0")); }), 1);
    QCOMPARE(repainted([&] { bar.SetCurSel(items[1], false); }), 1);
    QCOMPARE(repainted([&] { bar.SetCurSel(items[1], true); }), 1);
    QCOMPARE(repainted([&] { bar.DoClickItem(); }), 1);
    QCOMPARE(repainted([&] { bar.DoClickMoreItem(false); }), 1);
    QCOMPARE(repainted([&] { bar.DoClickMoreItem(true); }), 1);
    QCOMPARE(repainted([&] { bar.press({20, 20}); }), 1);
    QCOMPARE(repainted([&] { bar.release({20, 20}); }), 1);
    QCOMPARE(repainted([&] { bar.move({20, 20}); }), 1);
    QCOMPARE(repainted([&] { bar.move({20, 200}); }), 1);
    QCOMPARE(repainted([&] { bar.leave(); }), 1);
    QCOMPARE(repainted([&] { bar.resize(137, 40); }), 1);

    QCOMPARE(repainted([&] { bar.ModifySwitch(text("none"), text("x"), {}); }), 0);
    QCOMPARE(repainted([&] { bar.ModifyImageSwitch(text("none"), {}, {}, {}, {}); }), 0);
    QCOMPARE(repainted([&] { bar.SetItemLabel(&stranger, text("x")); }), 0);
    QCOMPARE(repainted([&] { bar.SetCurSel(&stranger, true); }), 0);
    QCOMPARE(repainted([&] { bar.GetCurSel(label); }), 0);
    QCOMPARE(repainted([&] { bar.DoClickMoreItem(true); }), 0);
    QCOMPARE(repainted([&] { bar.press({20, 200}); }), 0);
    QCOMPARE(repainted([&] { bar.press({20, 20}, Qt::RightButton); }), 0);
    QCOMPARE(repainted([&] { bar.ClearAll(); }), 1);
    QCOMPARE(repainted([&] { bar.DoClickItem(); }), 0);
}

// State that changed without a layout counts at the next addition.
void tst_SwitchEx::addingAfterStateChangedBehindTheLayout()
{
    Bar bar(Qt::Horizontal, QSize(600, 40));
    bar.setItemSize(10);
    bar.add(50);
    QVERIFY(!bar.moreShown);
    bar.orientation = Qt::Vertical;
    bar.add(1);
    QVERIFY(bar.moreShown);
    QCOMPARE(bar.moreRect, QRectF(0, 2, 600, 38));

    Bar other(Qt::Horizontal, QSize(550, 40));
    other.setItemSize(10);
    other.add(49);
    other.mode = CSwitchEx::ModeSwitch;
    other.ReLayout();
    other.mode = CSwitchEx::ModeButton;
    QCOMPARE(other.items[48]->rect.right(), 550.0);
    other.add(1);
    QVERIFY(other.moreShown);
    QCOMPARE(other.visibleCount, 45);

    // A hidden bar learns of its new size by the next layout.
    Bar hidden(Qt::Horizontal, QSize(600, 40));
    hidden.setItemSize(10);
    hidden.add(50);
    hidden.hide();
    hidden.resize(500, 50);
    QVERIFY(!hidden.moreShown);
    const auto end = hidden.add(1, "e", true);
    QCOMPARE(end[0]->rect, QRectF(490, 0, 10, 50));
    QCOMPARE(hidden.moreRect, QRectF(452, 0, 38, 50));
    QCOMPARE(hidden.visibleCount, 45);

    // A cleared bar begins anew.
    Bar cleared(Qt::Horizontal, QSize(600, 40));
    cleared.setItemSize(10);
    cleared.add(50);
    cleared.ClearAll();
    cleared.add(40);
    QCOMPARE(cleared.items[39]->rect, QRectF(390, 0, 10, 40));
    QCOMPARE(cleared.visibleCount, 40);
}

// Items of 10 pixels; the first is made wider after the layout has placed them all.
void tst_SwitchEx::aCellChangedFromOutsideCountsAtTheNextAddition_data()
{
    QTest::addColumn<int>("items");
    QTest::addColumn<bool>("atEnd"); // the item that is added
    QTest::addColumn<int>("length");
    QTest::addColumn<double>("width"); // of the first item
    QTest::addColumn<int>("visible");
    QTest::addColumn<QRectF>("second");
    QTest::addColumn<QRectF>("added");

    QTest::newRow("5, fitting") << 5 << false << 600 << 60.0 << 6 << QRectF(60, 0, 10, 40)
                                << QRectF(100, 0, 10, 40);
    QTest::newRow("5, fitting, at the end")
        << 5 << true << 600 << 60.0 << 5 << QRectF(60, 0, 10, 40) << QRectF(590, 0, 10, 40);
    // The scroll buttons begin at 562, or at 552 before the end item.
    QTest::newRow("5, overflowing")
        << 5 << false << 600 << 555.0 << 1 << QRectF(10, 0, 10, 40) << QRectF(0, 0, 10, 40);
    QTest::newRow("5, overflowing, at the end")
        << 5 << true << 600 << 551.0 << 1 << QRectF(10, 0, 10, 40) << QRectF(590, 0, 10, 40);
    QTest::newRow("100, fitting") << 100 << false << 1200 << 60.0 << 101 << QRectF(60, 0, 10, 40)
                                  << QRectF(1050, 0, 10, 40);
    QTest::newRow("100, fitting, at the end")
        << 100 << true << 1200 << 60.0 << 100 << QRectF(60, 0, 10, 40) << QRectF(1190, 0, 10, 40);
    // The scroll buttons begin at 1162, or at 1152 before the end item.
    QTest::newRow("100, overflowing")
        << 100 << false << 1200 << 300.0 << 87 << QRectF(300, 0, 10, 40) << QRectF(0, 0, 10, 40);
    QTest::newRow("100, overflowing, at the end")
        << 100 << true << 1200 << 300.0 << 86 << QRectF(300, 0, 10, 40) << QRectF(1190, 0, 10, 40);
}

void tst_SwitchEx::aCellChangedFromOutsideCountsAtTheNextAddition()
{
    QFETCH(int, items);
    QFETCH(bool, atEnd);
    QFETCH(int, length);
    QFETCH(double, width);
    QFETCH(int, visible);
    QFETCH(QRectF, second);
    QFETCH(QRectF, added);
    Bar bar(Qt::Horizontal, QSize(length, 40));
    bar.setItemSize(10);
    bar.add(items);
    QCOMPARE(bar.visibleCount, items);
    bar.items[0]->rect.setWidth(width);
    QCOMPARE(bar.add(1, "x", atEnd)[0]->rect, added);
    QCOMPARE(bar.visibleCount, visible);
    QCOMPARE(bar.moreShown, visible < bar.items.size());
    QCOMPARE(bar.items[1]->rect, second);
}

// The same of a cell that was moved away, and of an end item's.
void tst_SwitchEx::aCellMovedFromOutsideIsPutBackByTheNextAddition()
{
    for (const int count : {5, 100}) {
        Bar bar(Qt::Horizontal, QSize(1200, 40));
        bar.setItemSize(10);
        bar.add(count);
        const auto ends = bar.add(2, "e", true);
        bar.items[1]->rect = QRectF(700, 0, 10, 30);
        ends[0]->rect = QRectF(3, 0, 15, 30);
        bar.add(1);
        QCOMPARE(bar.items[1]->rect, QRectF(10, 0, 10, 40));
        QCOMPARE(rects(ends), (Rects{{1185, 0, 15, 40}, {1175, 0, 10, 40}}));
    }
}

// Forty items of 10 pixels and what one more does beside them.
void tst_SwitchEx::oneMoreBesideMany()
{
    Bar bar(Qt::Horizontal, QSize(500, 40));
    bar.setItemSize(10);
    bar.add(40);
    QCOMPARE(bar.add(1)[0]->rect, QRectF(400, 0, 10, 40));
    QCOMPARE(bar.visibleCount, 41);
    QCOMPARE(bar.add(1, "e", true)[0]->rect, QRectF(490, 0, 10, 40));
    QCOMPARE(bar.add(1, "e", true)[0]->rect, QRectF(480, 0, 10, 40));
    QCOMPARE(bar.visibleCount, 41);
    bar.add(7);
    QVERIFY(!bar.moreShown);
    QCOMPARE(bar.visibleCount, 48);
    // 500 are full: the next main item is one too many, 442 are left.
    QCOMPARE(bar.add(1)[0]->rect, QRectF(0, 0, 10, 40));
    QVERIFY(bar.moreShown);
    QCOMPARE(bar.moreRect, QRectF(442, 0, 38, 40));
    QCOMPARE(bar.visibleCount, 44);
    QCOMPARE(bar.add(1)[0]->rect, QRectF(0, 0, 10, 40));
    QCOMPARE(bar.visibleCount, 44);
    // End items push the buttons and what is shown back.
    QCOMPARE(bar.add(1, "e", true)[0]->rect, QRectF(470, 0, 10, 40));
    QCOMPARE(bar.moreRect, QRectF(432, 0, 38, 40));
    QCOMPARE(bar.visibleCount, 43);
    bar.setItemSize(0);
    QCOMPARE(bar.visibleCount, 6); // measured: 50 each, 312 before the buttons

    // The first main item beside many end items.
    Bar ends(Qt::Horizontal, QSize(500, 40));
    ends.setItemSize(10);
    QCOMPARE(ends.add(40, "e", true)[39]->rect, QRectF(100, 0, 10, 40));
    QCOMPARE(ends.visibleCount, 0);
    QCOMPARE(ends.add(1)[0]->rect, QRectF(0, 0, 10, 40));
    QCOMPARE(ends.add(1)[0]->rect, QRectF(10, 0, 10, 40));
    QCOMPARE(ends.visibleCount, 2);

    // Scrolled to the end with room left, one more is shown at once, then no more.
    Bar scrolled(Qt::Horizontal, QSize(138, 40));
    scrolled.setItemSize(30);
    scrolled.add(39);
    for (int i = 0; i < 36; ++i)
        scrolled.DoClickMoreItem(false);
    QCOMPARE(scrolled.firstIndex, 36);
    QCOMPARE(scrolled.visibleCount, 3);
    const auto separator = scrolled.AddSeparator(9);
    QCOMPARE(separator->rect, QRectF(90, 0, 9, 40));
    QCOMPARE(scrolled.visibleCount, 4);
    QCOMPARE(scrolled.AddSeparator(2)->rect, QRectF(0, 0, 2, 40));
    QCOMPARE(scrolled.visibleCount, 4);
    QCOMPARE(scrolled.firstIndex, 36);
    // Exactly to the buttons.
    Bar exact(Qt::Horizontal, QSize(138, 40));
    exact.setItemSize(30);
    exact.add(39);
    for (int i = 0; i < 36; ++i)
        exact.DoClickMoreItem(false);
    QCOMPARE(exact.AddSeparator(10)->rect, QRectF(90, 0, 10, 40));
    QCOMPARE(exact.visibleCount, 4);
    // An end item pushes the buttons exactly to the end of the third.
    QCOMPARE(exact.AddSeparator(10, true)->rect, QRectF(128, 0, 10, 40));
    QCOMPARE(exact.moreRect, QRectF(90, 0, 38, 40));
    QCOMPARE(exact.visibleCount, 3);

    // A separator of less than nothing makes room for an earlier item: 101 - 36 + 30 < 100.
    scrolled.AddSeparator(-36);
    QCOMPARE(scrolled.firstIndex, 35);
    QCOMPARE(scrolled.visibleCount, 3);
}

TRADECONFIG_TEST_MAIN(tst_SwitchEx)

#include "tst_SwitchEx.moc"
