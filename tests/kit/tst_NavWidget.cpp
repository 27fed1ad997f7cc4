#include "support/RecordingSkin.h"
#include "support/TestMain.h"
#include "support/UpdateCounter.h"
#include "tradeConfig/NavWidget.h"

#include <QPixmap>
#include <QSignalSpy>

#include <memory>

class tst_NavWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void startsOnTheFirstEntry();
    void press_data();
    void press();
    void aPressOnTheSelectedEntryCountsAgain();
    void theSelectionIsNewWhenTheSignalComes();
    void aSlotMayDeleteTheList();
    void hover();
    void aNewListKeepsTheIndices();
    void painting_data();
    void painting();
    void aListLowerThanItsEntriesFillsBackwards();
    void repaints();
};

namespace {

QStringList names(int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list << QStringLiteral("n%1").arg(i);
    return list;
}

QStringList painted(CNavWidget& list)
{
    RecordingSkin::takeCalls();
    QPixmap target(list.size());
    list.render(&target);
    return RecordingSkin::takeCalls();
}

void sendMouse(CNavWidget& list, QEvent::Type type, QPoint at, Qt::MouseButton button)
{
    QMouseEvent event(type, at, list.mapToGlobal(at), button, button, Qt::NoModifier);
    QApplication::sendEvent(&list, &event);
}

void press(CNavWidget& list, int y, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(list, QEvent::MouseButtonPress, QPoint(10, y), button);
}

void move(CNavWidget& list, int y)
{
    sendMouse(list, QEvent::MouseMove, QPoint(10, y), Qt::NoButton);
}

} // namespace

void tst_NavWidget::init() { RecordingSkin::reset(); }

void tst_NavWidget::startsOnTheFirstEntry()
{
    QWidget parent;
    auto* const list = new CNavWidget(&parent);
    QCOMPARE(list->parentWidget(), &parent);
    QVERIFY(list->hasMouseTracking());
    QCOMPARE(list->items, QStringList());
    QCOMPARE(list->count, 0);
    QCOMPARE(list->selected, 0);
    QCOMPARE(list->hover, 0);
}

void tst_NavWidget::press_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("expected"); // -1: the press is ignored

    QTest::newRow("dead first row") << 10 << 0 << int(Qt::LeftButton) << -1;
    QTest::newRow("above") << 10 << -1 << int(Qt::LeftButton) << -1;
    QTest::newRow("far above") << 10 << -60 << int(Qt::LeftButton) << -1;
    QTest::newRow("second row") << 10 << 1 << int(Qt::LeftButton) << 0;
    QTest::newRow("last row of the first") << 10 << 49 << int(Qt::LeftButton) << 0;
    QTest::newRow("first row of the second") << 10 << 50 << int(Qt::LeftButton) << 1;
    QTest::newRow("last row of the second") << 10 << 99 << int(Qt::LeftButton) << 1;
    QTest::newRow("first row of the third") << 10 << 100 << int(Qt::LeftButton) << 2;
    QTest::newRow("last row") << 10 << 149 << int(Qt::LeftButton) << 2;
    QTest::newRow("below the last") << 10 << 150 << int(Qt::LeftButton) << -1;
    QTest::newRow("far below") << 10 << 399 << int(Qt::LeftButton) << -1;
    QTest::newRow("right button") << 10 << 60 << int(Qt::RightButton) << 1;
    QTest::newRow("middle button") << 10 << 110 << int(Qt::MiddleButton) << 2;
    QTest::newRow("left of the list") << -40 << 60 << int(Qt::LeftButton) << 1;
    QTest::newRow("right of the list") << 900 << 60 << int(Qt::LeftButton) << 1;
}

void tst_NavWidget::press()
{
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(int, button);
    QFETCH(int, expected);
    CNavWidget list;
    list.resize(120, 400);
    list.SetBtnList(names(3));
    list.selected = 0;
    list.hover = 2;
    const QSignalSpy clicked(&list, &CNavWidget::signal_onclicked);
    sendMouse(list, QEvent::MouseButtonPress, QPoint(x, y), Qt::MouseButton(button));
    QCOMPARE(list.hover, 2);
    if (expected < 0) {
        QCOMPARE(clicked.size(), 0);
        QCOMPARE(list.selected, 0);
    } else {
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(clicked.first().first().toInt(), expected);
        QCOMPARE(list.selected, expected);
    }
    // Neither a release nor a move with a button held selects.
    sendMouse(list, QEvent::MouseButtonRelease, QPoint(10, 60), Qt::LeftButton);
    sendMouse(list, QEvent::MouseMove, QPoint(10, 60), Qt::LeftButton);
    QCOMPARE(clicked.size(), expected < 0 ? 0 : 1);
    QCOMPARE(list.selected, expected < 0 ? 0 : expected);
}

void tst_NavWidget::aPressOnTheSelectedEntryCountsAgain()
{
    CNavWidget list;
    list.resize(120, 400);
    list.SetBtnList(names(2));
    const QSignalSpy clicked(&list, &CNavWidget::signal_onclicked);
    ::press(list, 70);
    ::press(list, 70);
    ::press(list, 70);
    QCOMPARE(clicked.size(), 3);
    QCOMPARE(clicked.last().first().toInt(), 1);
}

void tst_NavWidget::theSelectionIsNewWhenTheSignalComes()
{
    CNavWidget list;
    list.resize(120, 400);
    list.SetBtnList(names(3));
    int seen = -1;
    connect(&list, &CNavWidget::signal_onclicked, this, [&](int) { seen = list.selected; });
    ::press(list, 120);
    QCOMPARE(seen, 2);
}

void tst_NavWidget::aSlotMayDeleteTheList()
{
    auto list = std::make_unique<CNavWidget>();
    list->resize(120, 400);
    list->SetBtnList(names(3));
    connect(list.get(), &CNavWidget::signal_onclicked, this, [&](int) { list.reset(); });
    list->press(1);
    QVERIFY(!list);
}

void tst_NavWidget::hover()
{
    CNavWidget list;
    list.resize(120, 400);
    list.SetBtnList(names(3));
    ::press(list, 60);
    const QSignalSpy clicked(&list, &CNavWidget::signal_onclicked);
    const QVector<QPair<int, int>> moves{{0, 0},   {1, 0},   {49, 0}, {50, 1}, {149, 2},
                                         {150, 2}, {300, 2}, {-5, 2}, {0, 2},  {30, 0}};
    for (const auto& [y, expected] : moves) {
        move(list, y);
        QCOMPARE(list.hover, expected);
        QCOMPARE(list.selected, 1);
    }
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&list, &leave);
    QCOMPARE(list.hover, 1);
    QCOMPARE(clicked.size(), 0);
}

void tst_NavWidget::aNewListKeepsTheIndices()
{
    CNavWidget list;
    list.resize(120, 400);
    list.SetBtnList(names(4));
    ::press(list, 170);
    move(list, 120);
    list.SetBtnList({QStringLiteral("only")});
    QCOMPARE(list.items, QStringList{QStringLiteral("only")});
    QCOMPARE(list.count, 1);
    QCOMPARE(list.selected, 3);
    QCOMPARE(list.hover, 2);
    const QSignalSpy clicked(&list, &CNavWidget::signal_onclicked);
    ::press(list, 60);
    QCOMPARE(clicked.size(), 0);
    list.SetBtnList({});
    QCOMPARE(list.count, 0);
    ::press(list, 1);
    QCOMPARE(clicked.size(), 0);
}

void tst_NavWidget::painting_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("selected");
    QTest::addColumn<int>("hover");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("first selected")
        << 3 << 0 << 0
        << QStringList{
               QStringLiteral("fillRect 0,50,119,350 NavSwitchBorder"),
               QStringLiteral("drawText 20,15,120,20 0x1 NavSwitchFgSelect NavSwitchSel \"n0\""),
               QStringLiteral("drawText 20,65,120,20 0x1 NavSwitchFgNormal NavSwitch \"n1\""),
               QStringLiteral("drawText 20,115,120,20 0x1 NavSwitchFgNormal NavSwitch \"n2\"")};
    QTest::newRow("second selected")
        << 3 << 1 << 1
        << QStringList{
               QStringLiteral("fillRect 0,0,119,50 NavSwitchBorder"),
               QStringLiteral("fillRect 0,100,119,300 NavSwitchBorder"),
               QStringLiteral("drawText 20,15,120,20 0x1 NavSwitchFgNormal NavSwitch \"n0\""),
               QStringLiteral("drawText 20,65,120,20 0x1 NavSwitchFgSelect NavSwitchSel \"n1\""),
               QStringLiteral("drawText 20,115,120,20 0x1 NavSwitchFgNormal NavSwitch \"n2\"")};
    QTest::newRow("third selected, first highlighted")
        << 3 << 2 << 0
        << QStringList{
               QStringLiteral("fillRect 0,0,119,100 NavSwitchBorder"),
               QStringLiteral("fillRect 0,150,119,250 NavSwitchBorder"),
               QStringLiteral("fillRect 0,0,120,50 NavSwitchBgHover"),
               QStringLiteral("drawText 20,15,120,20 0x1 NavSwitchFgNormal NavSwitch \"n0\""),
               QStringLiteral("drawText 20,65,120,20 0x1 NavSwitchFgNormal NavSwitch \"n1\""),
               QStringLiteral("drawText 20,115,120,20 0x1 NavSwitchFgSelect NavSwitchSel \"n2\"")};
    QTest::newRow("first selected, second highlighted")
        << 2 << 0 << 1
        << QStringList{
               QStringLiteral("fillRect 0,50,119,350 NavSwitchBorder"),
               QStringLiteral("fillRect 0,50,120,50 NavSwitchBgHover"),
               QStringLiteral("drawText 20,15,120,20 0x1 NavSwitchFgSelect NavSwitchSel \"n0\""),
               QStringLiteral("drawText 20,65,120,20 0x1 NavSwitchFgNormal NavSwitch \"n1\"")};
    QTest::newRow("empty") << 0 << 0 << 0
                           << QStringList{QStringLiteral("fillRect 0,50,119,350 NavSwitchBorder")};
    // What is left of a longer list.
    QTest::newRow("selected and highlighted behind the end")
        << 1 << 3 << 2
        << QStringList{
               QStringLiteral("fillRect 0,0,119,150 NavSwitchBorder"),
               QStringLiteral("fillRect 0,200,119,200 NavSwitchBorder"),
               QStringLiteral("fillRect 0,100,120,50 NavSwitchBgHover"),
               QStringLiteral("drawText 20,15,120,20 0x1 NavSwitchFgNormal NavSwitch \"n0\"")};
}

void tst_NavWidget::painting()
{
    QFETCH(int, count);
    QFETCH(int, selected);
    QFETCH(int, hover);
    QFETCH(QStringList, expected);
    CNavWidget list;
    list.resize(120, 400);
    list.SetBtnList(names(count));
    list.selected = selected;
    list.hover = hover;
    QCOMPARE(painted(list), expected);
    QCOMPARE(RecordingSkin::takeMeasurements(), QStringList());
}

void tst_NavWidget::aListLowerThanItsEntriesFillsBackwards()
{
    CNavWidget list;
    list.resize(120, 30);
    QCOMPARE(painted(list), QStringList{QStringLiteral("fillRect 0,50,119,-20 NavSwitchBorder")});
}

void tst_NavWidget::repaints()
{
    CNavWidget list;
    list.resize(120, 400);
    list.SetBtnList(names(3));
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    UpdateCounter counter(list);
    QCOMPARE(counter.take(), 0);
    ::press(list, 60);
    QCOMPARE(counter.take(), 1);
    move(list, 120);
    QCOMPARE(counter.take(), 1);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&list, &leave);
    QCOMPARE(counter.take(), 1);
    ::press(list, 0);
    move(list, 150);
    list.SetBtnList(names(5));
    QCOMPARE(counter.take(), 0);
}

TRADECONFIG_TEST_MAIN(tst_NavWidget)

#include "tst_NavWidget.moc"
