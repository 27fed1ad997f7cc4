#include "support/RecordingSkin.h"
#include "support/TestMain.h"
#include "tradeConfig/NavWidget.h"
#include "tradeConfig/NavWidgetAccessible.h"
#include "tradeConfig/PartsAccessible.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/SwitchExAccessible.h"

#include <QAccessible>
#include <QMenu>
#include <QSignalSpy>

#include <memory>

class tst_KitAccessibility : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theBarIsAListOfPageTabs();
    void theStatesFollowTheMouse();
    void aPressDoesWhatAClickDoes();
    void aPressDropsTheMenuDown();
    void itemsOutOfViewAreOffscreenButCanBePressed();
    void whatIsOffscreen_data();
    void whatIsOffscreen();
    void entriesBelowTheListAreOffscreen();
    void neitherTakesTheFocusOrKeys();
    void theInterfacesOutliveTheItems();
    void anInterfaceNeverStandsForALaterItem();
    void anInterfaceNeverStandsForALaterEntry();
    void interfacesOfReplacedPartsDoNotPileUp();
    void describesAWidgetThatIsGone();
    void addingItemsMovesNoIdentity();
    void theInterfacesDieWithTheBar();
    void aDerivedBarIsABar();
    void partsOfAnotherBarAreNotChildren();
    void theListIsAListOfItems();
    void theListFollowsTheMouse();
    void aPressOnTheListSelectsAndTells();
};

namespace {

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

QAccessibleInterface* of(QWidget& widget) { return QAccessible::queryAccessibleInterface(&widget); }

QString nameOf(const QAccessibleInterface* one) { return one->text(QAccessible::Name); }

QStringList namesOf(const QAccessibleInterface* whole)
{
    QStringList names;
    for (int i = 0; i < whole->childCount(); ++i)
        names << nameOf(whole->child(i));
    return names;
}

// As assistive technology does it.
void pressPart(QAccessibleInterface* part)
{
    QAccessibleActionInterface* const actions = part->actionInterface();
    QVERIFY(actions);
    actions->doAction(QAccessibleActionInterface::pressAction());
}

class Bar : public CSwitchEx {
public:
    using CSwitchEx::CSwitchEx;
    ~Bar() override { ClearAll(); }
};

class DerivedBar : public Bar {
    Q_OBJECT
public:
    using Bar::Bar;
};

} // namespace

void tst_KitAccessibility::init() { RecordingSkin::reset(); }

void tst_KitAccessibility::theBarIsAListOfPageTabs()
{
    Bar bar(nullptr, Qt::Horizontal, QMargins());
    bar.setWindowFlags(Qt::FramelessWindowHint);
    bar.setGeometry(50, 60, 500, 40);
    bar.setItemSize(100);
    QMenu menu;
    bar.AddNormalSwitch(text("系统设置"));
    bar.AddNormalSwitch(text("交易设置"), {}, false, &menu);
    bar.AddSeparator(10);
    bar.AddNormalSwitch(text("outer"), {}, true);
    bar.AddNormalSwitch(text("inner"), {}, true);
    bar.show();

    QAccessibleInterface* const list = of(bar);
    QCOMPARE(list->role(), QAccessible::PageTabList);
    QCOMPARE(list->object(), &bar);
    QCOMPARE(list->childCount(), 5);
    QCOMPARE(
        namesOf(list),
        (QStringList{text("系统设置"), text("交易设置"), QString(), text("inner"), text("outer")}));
    const QRect places[] = {{50, 60, 100, 40},
                            {150, 60, 100, 40},
                            {250, 60, 10, 40},
                            {350, 60, 100, 40},
                            {450, 60, 100, 40}};
    for (int i = 0; i < 5; ++i) {
        QAccessibleInterface* const tab = list->child(i);
        QVERIFY(tab && tab->isValid());
        QCOMPARE(tab->rect(), places[i]);
        QCOMPARE(tab->role(), i == 2 ? QAccessible::Separator : QAccessible::PageTab);
        QCOMPARE(tab->parent(), list);
        QCOMPARE(tab->window(), list->window());
        QVERIFY(!tab->object());
        QCOMPARE(tab->childCount(), 0);
        QVERIFY(!tab->child(0));
        QVERIFY(!tab->childAt(places[i].x() + 1, 70));
        QCOMPARE(tab->indexOfChild(tab), -1);
        QCOMPARE(list->indexOfChild(tab), i);
        QCOMPARE(list->child(i), tab);
        QCOMPARE(list->childAt(places[i].x() + 5, 80), tab);
        QCOMPARE(bool(tab->state().hasPopup), i == 1);
        QCOMPARE(bool(tab->state().selectable), i != 2);
        QVERIFY(!tab->state().offscreen);
        QVERIFY(!tab->state().invisible);
        QVERIFY(!tab->state().disabled);
        QCOMPARE(tab->text(QAccessible::Description), QString());
        QCOMPARE(tab->text(QAccessible::Value), QString());
        tab->setText(QAccessible::Name, text("not to be"));
    }
    QCOMPARE(nameOf(list->child(0)), text("系统设置"));
    QVERIFY(!list->child(-1));
    QVERIFY(!list->child(5));
    QVERIFY(!list->childAt(300, 80));
    QVERIFY(!list->childAt(49, 80));
    QVERIFY(!list->childAt(60, 101));
    QCOMPARE(list->indexOfChild(list), -1);
}

void tst_KitAccessibility::theStatesFollowTheMouse()
{
    Bar bar(nullptr, Qt::Horizontal, QMargins());
    bar.resize(300, 40);
    bar.setItemSize(100);
    bar.AddNormalSwitch(text("a"));
    bar.AddNormalSwitch(text("b"));
    bar.AddNormalSwitch(text("e"), {}, true);
    QAccessibleInterface* const list = of(bar);
    const auto states = [&] {
        QString all;
        for (int i = 0; i < 3; ++i) {
            const QAccessible::State state = list->child(i)->state();
            all += QLatin1Char(state.selected ? 's' : '-');
            all += QLatin1Char(state.hotTracked ? 'h' : '-');
        }
        return all;
    };
    QCOMPARE(states(), text("------"));
    QVERIFY(list->child(0)->state().invisible);
    QTest::mouseMove(&bar, {150, 20});
    QTest::mousePress(&bar, Qt::LeftButton, {}, {50, 20});
    bar.hoverItem = bar.items[1];
    QCOMPARE(states(), text("s--h--"));
    QTest::mousePress(&bar, Qt::LeftButton, {}, {250, 20});
    QCOMPARE(states(), text("---hs-"));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&bar, &leave);
    QCOMPARE(states(), text("----s-"));
    bar.SetCurSel(bar.items[1], false);
    QCOMPARE(states(), text("--s---"));
    bar.setEnabled(false);
    QVERIFY(list->child(0)->state().disabled);
}

void tst_KitAccessibility::aPressDoesWhatAClickDoes()
{
    Bar bar(nullptr, Qt::Horizontal, QMargins());
    bar.resize(400, 40);
    QStringList log;
    bar.AddNormalSwitch(text("a"), [&] { log << text("a"); });
    const auto b = bar.AddNormalSwitch(text("b"), [&] { log << text("b"); });
    const auto separator = bar.AddSeparator(10);
    separator->callback = [&] { log << text("separator"); };
    const auto end = bar.AddNormalSwitch(
        text("e"), [&] { log << text("e"); }, true);
    QAccessibleInterface* const list = of(bar);
    const QString press = QAccessibleActionInterface::pressAction();

    QCOMPARE(list->child(1)->actionInterface()->actionNames(), QStringList{press});
    QCOMPARE(list->child(1)->actionInterface()->keyBindingsForAction(press), QStringList());
    pressPart(list->child(1));
    QCOMPARE(bar.curSel, b);
    QCOMPARE(log, QStringList{text("b")});
    pressPart(list->child(3));
    QCOMPARE(bar.curSel, end);
    QCOMPARE(log, (QStringList{text("b"), text("e")}));
    // The one selected already runs again, as by a click.
    pressPart(list->child(3));
    QCOMPARE(log.size(), 3);

    list->child(0)->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    QCOMPARE(list->child(2)->actionInterface()->actionNames(), QStringList());
    pressPart(list->child(2));
    bar.setEnabled(false);
    QCOMPARE(list->child(0)->actionInterface()->actionNames(), QStringList());
    pressPart(list->child(0));
    QCOMPARE(bar.curSel, end);
    QCOMPARE(log.size(), 3);
}

void tst_KitAccessibility::aPressDropsTheMenuDown()
{
    Bar bar(nullptr, Qt::Horizontal, QMargins());
    bar.setWindowFlags(Qt::FramelessWindowHint);
    bar.setGeometry(50, 60, 300, 40);
    bar.show();
    QMenu menu;
    menu.addAction(text("x"));
    bar.AddNormalSwitch(text("a"), {}, false, &menu);
    pressPart(of(bar)->child(0));
    QVERIFY(menu.isVisible());
    QCOMPARE(menu.pos(), QPoint(50, 100));
    menu.hide();
}

void tst_KitAccessibility::itemsOutOfViewAreOffscreenButCanBePressed()
{
    Bar bar(nullptr, Qt::Horizontal, QMargins());
    bar.resize(138, 40);
    bar.setItemSize(50);
    int runs = 0;
    for (int i = 0; i < 4; ++i)
        bar.AddNormalSwitch(QString::number(i), [&] { ++runs; });
    bar.DoClickMoreItem(false);
    QAccessibleInterface* const list = of(bar);
    const bool expected[] = {true, false, false, true};
    for (int i = 0; i < 4; ++i)
        QCOMPARE(bool(list->child(i)->state().offscreen), expected[i]);
    // The scroll buttons are no tabs, and looking at them does not scroll.
    const QPoint button = bar.mapToGlobal({130, 20});
    QVERIFY(!list->childAt(button.x(), button.y()));
    QCOMPARE(bar.firstIndex, 1);
    pressPart(list->child(3));
    QCOMPARE(runs, 1);
    QCOMPARE(bar.curSel, bar.items[3]);
}

// Five main items of 50 pixels and two end items of 50. An "o" for each that is off-screen.
void tst_KitAccessibility::whatIsOffscreen_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("scrolled");
    QTest::addColumn<QString>("expected");

    const int button = CSwitchEx::ModeButton;
    const int division = CSwitchEx::ModeSwitch;
    QTest::newRow("all fit") << button << 350 << 0 << text("-------");
    // The scroll buttons begin at 161: three of five fit.
    QTest::newRow("overflowing") << button << 299 << 0 << text("---oo--");
    QTest::newRow("scrolled by one") << button << 299 << 1 << text("o---o--");
    QTest::newRow("scrolled to the end") << button << 299 << 2 << text("oo-----");
    // The inner end item lies from -50 to 0, then from -49 to 1.
    QTest::newRow("an end item beyond the bar") << button << 50 << 0 << text("oooooo-");
    QTest::newRow("an end item in sight by a pixel") << button << 51 << 0 << text("ooooo--");
    QTest::newRow("no bar at all") << button << 0 << 0 << text("ooooooo");
    QTest::newRow("equal division") << division << 350 << 0 << text("-------");
    QTest::newRow("equal division, short") << division << 70 << 0 << text("-------");
    QTest::newRow("equal division, scrolled before") << division << 299 << 2 << text("-------");
}

void tst_KitAccessibility::whatIsOffscreen()
{
    QFETCH(int, mode);
    QFETCH(int, length);
    QFETCH(int, scrolled);
    QFETCH(QString, expected);
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        const bool horizontal = orientation == Qt::Horizontal;
        Bar bar(nullptr, orientation, QMargins());
        bar.setMinimumSize(0, 0);
        bar.resize(horizontal ? QSize(length, 60) : QSize(60, length));
        bar.setItemSize(50);
        if (scrolled == 0)
            bar.changeMode(CSwitchEx::SwitchMode(mode));
        for (int i = 0; i < 7; ++i)
            bar.AddNormalSwitch(QString::number(i), {}, i >= 5);
        for (int i = 0; i < scrolled; ++i)
            bar.DoClickMoreItem(false);
        bar.changeMode(CSwitchEx::SwitchMode(mode));
        QString states;
        for (int i = 0; i < 7; ++i)
            states += QLatin1Char(of(bar)->child(i)->state().offscreen ? 'o' : '-');
        QCOMPARE(states, expected);
        // Off-screen is not invisible, nor does it keep anybody from pressing.
        QCOMPARE(of(bar)->child(3)->actionInterface()->actionNames().size(), 1);
    }
}

void tst_KitAccessibility::entriesBelowTheListAreOffscreen()
{
    CNavWidget nav;
    nav.SetBtnList({text("a"), text("b"), text("c")});
    const auto states = [&](int height) {
        nav.resize(120, height);
        QString all;
        for (int i = 0; i < 3; ++i)
            all += QLatin1Char(of(nav)->child(i)->state().offscreen ? 'o' : '-');
        return all;
    };
    QCOMPARE(states(400), text("---"));
    QCOMPARE(states(101), text("---"));
    QCOMPARE(states(100), text("--o"));
    QCOMPARE(states(51), text("--o"));
    QCOMPARE(states(50), text("-oo"));
    QCOMPARE(states(0), text("ooo"));
}

void tst_KitAccessibility::neitherTakesTheFocusOrKeys()
{
    QWidget window;
    Bar bar(&window, Qt::Horizontal, QMargins());
    bar.resize(400, 40);
    bar.AddNormalSwitch(text("a"));
    bar.AddNormalSwitch(text("b"));
    bar.SetCurSel(bar.items[0], false);
    CNavWidget nav(&window);
    nav.resize(120, 400);
    nav.SetBtnList({text("a"), text("b")});
    QWidget focused(&window);
    focused.setFocusPolicy(Qt::StrongFocus);
    window.show();
    window.activateWindow();
    focused.setFocus();
    QTRY_VERIFY(focused.hasFocus());
    for (QWidget* const widget : std::initializer_list<QWidget*>{&bar, &nav}) {
        QCOMPARE(widget->focusPolicy(), Qt::NoFocus);
        QVERIFY(!of(*widget)->state().focusable);
        QVERIFY(!of(*widget)->child(1)->state().focusable);
        for (const int key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Space, Qt::Key_Return}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            QApplication::sendEvent(widget, &press);
            QVERIFY(!press.isAccepted());
        }
        QVERIFY(of(*widget)->child(0)->state().selected);
        pressPart(of(*widget)->child(1));
        QVERIFY(of(*widget)->child(1)->state().selected);
        QVERIFY(focused.hasFocus());
    }
}

void tst_KitAccessibility::theInterfacesOutliveTheItems()
{
    Bar bar(nullptr, Qt::Horizontal, QMargins());
    bar.resize(400, 40);
    int runs = 0;
    bar.AddNormalSwitch(text("a"), [&] { ++runs; });
    bar.AddNormalSwitch(
        text("e"), [&] { ++runs; }, true);
    QAccessibleInterface* const list = of(bar);
    QAccessibleInterface* const a = list->child(0);
    QAccessibleInterface* const e = list->child(1);
    bar.ClearAll();
    QCOMPARE(list->childCount(), 0);
    for (QAccessibleInterface* const gone : {a, e}) {
        QVERIFY(!gone->isValid());
        QCOMPARE(nameOf(gone), QString());
        QCOMPARE(gone->rect(), QRect());
        QCOMPARE(gone->role(), QAccessible::NoRole);
        QVERIFY(gone->state().invalid);
        QVERIFY(!gone->state().selected);
        QCOMPARE(gone->actionInterface()->actionNames(), QStringList());
        pressPart(gone);
        QCOMPARE(list->indexOfChild(gone), -1);
    }
    QCOMPARE(runs, 0);

    // What comes next in the same place is another item.
    bar.AddNormalSwitch(text("new"), [&] { ++runs; });
    QAccessibleInterface* const fresh = list->child(0);
    QCOMPARE(nameOf(fresh), text("new"));
    for (QAccessibleInterface* const gone : {a, e}) {
        QVERIFY(gone != fresh);
        QVERIFY(!gone->isValid());
        QCOMPARE(nameOf(gone), QString());
        pressPart(gone);
        QCOMPARE(list->indexOfChild(gone), -1);
    }
    QCOMPARE(runs, 0);
    pressPart(fresh);
    QCOMPARE(runs, 1);
}

// Most allocators give a new item the address of the one that was freed last.
void tst_KitAccessibility::anInterfaceNeverStandsForALaterItem()
{
    Bar bar(nullptr, Qt::Horizontal, QMargins());
    bar.resize(400, 40);
    QAccessibleInterface* const list = of(bar);
    for (int round = 0; round < 20; ++round) {
        bar.AddNormalSwitch(text("old"));
        QAccessibleInterface* const old = list->child(0);
        QVERIFY(old->isValid());
        bar.ClearAll();
        bar.AddNormalSwitch(text("new"));
        QVERIFY(!old->isValid());
        QVERIFY(list->child(0) != old);
        QVERIFY(!old->isValid());
        bar.ClearAll();
    }
}

void tst_KitAccessibility::anInterfaceNeverStandsForALaterEntry()
{
    CNavWidget nav;
    nav.resize(120, 400);
    nav.SetBtnList({text("a"), text("b")});
    const QSignalSpy clicked(&nav, &CNavWidget::signal_onclicked);
    QAccessibleInterface* const list = of(nav);
    QAccessibleInterface* const a = list->child(0);
    QAccessibleInterface* const b = list->child(1);
    // The same texts again: other entries all the same.
    nav.SetBtnList({text("a"), text("b"), text("c")});
    for (QAccessibleInterface* const gone : {a, b}) {
        QVERIFY(!gone->isValid());
        QCOMPARE(nameOf(gone), QString());
        QVERIFY(gone->state().invalid);
        pressPart(gone);
        QCOMPARE(list->indexOfChild(gone), -1);
    }
    QCOMPARE(clicked.size(), 0);
    QCOMPARE(namesOf(list), (QStringList{text("a"), text("b"), text("c")}));
    QVERIFY(list->child(0) != a);
    QVERIFY(list->child(1) != b);
    QVERIFY(!a->isValid());
    QCOMPARE(list->indexOfChild(list->child(1)), 1);
}

void tst_KitAccessibility::interfacesOfReplacedPartsDoNotPileUp()
{
    Bar bar(nullptr, Qt::Horizontal, QMargins());
    QAccessibleInterface* const list = of(bar);
    QVector<QAccessible::Id> ids;
    for (int round = 0; round < 5; ++round) {
        bar.AddNormalSwitch(text("a"));
        ids << QAccessible::uniqueId(list->child(0));
        bar.ClearAll();
    }
    // Those of the last two rounds are left: invalid, but there for who holds them.
    for (int round = 0; round < 5; ++round)
        QCOMPARE(QAccessible::accessibleInterface(ids[round]) != nullptr, round >= 3);
}

// Assistive technology may hold on to what describes a widget that is gone.
void tst_KitAccessibility::describesAWidgetThatIsGone()
{
    auto list = std::make_unique<CNavWidget>();
    list->SetBtnList({text("a"), text("b")});
    list->resize(100, 200);
    NavWidgetAccessible ofList(list.get());
    auto bar = std::make_unique<Bar>(nullptr, Qt::Horizontal, QMargins());
    bar->resize(400, 40);
    bar->AddNormalSwitch(text("a"));
    SwitchExAccessible ofBar(bar.get());
    for (PartsAccessible* const whole : std::initializer_list<PartsAccessible*>{&ofList, &ofBar}) {
        QVERIFY(whole->isValid());
        QVERIFY(whole->childCount() > 0);
        const QPoint inside = whole->widget()->mapToGlobal(QPoint(5, 5));
        QVERIFY(whole->childAt(inside.x(), inside.y()));
    }
    list.reset();
    bar.reset();
    for (const PartsAccessible* const whole :
         std::initializer_list<const PartsAccessible*>{&ofList, &ofBar}) {
        QVERIFY(!whole->isValid());
        QCOMPARE(whole->childCount(), 0);
        QVERIFY(!whole->child(0));
        QVERIFY(!whole->childAt(5, 5));
    }
}

void tst_KitAccessibility::addingItemsMovesNoIdentity()
{
    Bar bar(nullptr, Qt::Horizontal, QMargins());
    bar.resize(900, 40);
    bar.AddNormalSwitch(text("outer"), {}, true);
    QAccessibleInterface* const list = of(bar);
    QAccessibleInterface* const outer = list->child(0);
    bar.AddNormalSwitch(text("a"));
    bar.AddNormalSwitch(text("inner"), {}, true);
    QCOMPARE(nameOf(outer), text("outer"));
    QCOMPARE(list->indexOfChild(outer), 2);
    QCOMPARE(list->child(2), outer);
}

void tst_KitAccessibility::theInterfacesDieWithTheBar()
{
    QAccessible::Id whole = 0;
    QAccessible::Id part = 0;
    {
        Bar bar(nullptr, Qt::Horizontal, QMargins());
        bar.AddNormalSwitch(text("a"));
        whole = QAccessible::uniqueId(of(bar));
        part = QAccessible::uniqueId(of(bar)->child(0));
        QCOMPARE(QAccessible::accessibleInterface(part), of(bar)->child(0));
    }
    QVERIFY(!QAccessible::accessibleInterface(whole));
    QVERIFY(!QAccessible::accessibleInterface(part));
}

void tst_KitAccessibility::aDerivedBarIsABar()
{
    DerivedBar bar(nullptr, Qt::Horizontal, QMargins());
    bar.AddNormalSwitch(text("a"));
    QCOMPARE(of(bar)->role(), QAccessible::PageTabList);
    QCOMPARE(of(bar)->childCount(), 1);
}

void tst_KitAccessibility::partsOfAnotherBarAreNotChildren()
{
    Bar one(nullptr, Qt::Horizontal, QMargins());
    one.AddNormalSwitch(text("a"));
    Bar other(nullptr, Qt::Horizontal, QMargins());
    other.AddNormalSwitch(text("b"));
    QCOMPARE(of(one)->indexOfChild(of(other)->child(0)), -1);
    QCOMPARE(of(one)->indexOfChild(nullptr), -1);
}

void tst_KitAccessibility::theListIsAListOfItems()
{
    CNavWidget nav;
    nav.setWindowFlags(Qt::FramelessWindowHint);
    nav.setGeometry(30, 40, 120, 400);
    nav.SetBtnList({text("基础设置"), text("联动设置"), text("界面设置")});
    nav.show();
    QAccessibleInterface* const list = of(nav);
    QCOMPARE(list->role(), QAccessible::List);
    QCOMPARE(namesOf(list), (QStringList{text("基础设置"), text("联动设置"), text("界面设置")}));
    const int tops[] = {40, 90, 140};
    for (int i = 0; i < 3; ++i) {
        QAccessibleInterface* const entry = list->child(i);
        QCOMPARE(entry->role(), QAccessible::ListItem);
        QCOMPARE(entry->rect(), QRect(30, tops[i], 120, 50));
        QCOMPARE(list->childAt(35, tops[i] + 10), entry);
        QCOMPARE(list->indexOfChild(entry), i);
        QVERIFY(entry->state().selectable);
        QCOMPARE(bool(entry->state().selected), i == 0);
        QVERIFY(!entry->state().hotTracked);
    }
    QVERIFY(!list->childAt(35, 40)); // the dead row of pixels
    QVERIFY(!list->childAt(35, 190));
    QVERIFY(!list->childAt(151, 60));
    QVERIFY(!list->child(3));
}

void tst_KitAccessibility::theListFollowsTheMouse()
{
    CNavWidget nav;
    nav.resize(120, 400);
    nav.SetBtnList({text("a"), text("b"), text("c")});
    QAccessibleInterface* const list = of(nav);
    QTest::mousePress(&nav, Qt::LeftButton, {}, {10, 60});
    nav.hover = 2;
    QVERIFY(list->child(1)->state().selected);
    QVERIFY(!list->child(0)->state().selected);
    QVERIFY(list->child(2)->state().hotTracked);
    QVERIFY(!list->child(1)->state().hotTracked);
    nav.hover = 1;
    QVERIFY(!list->child(1)->state().hotTracked);
    QVERIFY(!list->child(2)->state().hotTracked);
}

void tst_KitAccessibility::aPressOnTheListSelectsAndTells()
{
    CNavWidget nav;
    nav.resize(120, 400);
    nav.SetBtnList({text("a"), text("b"), text("c")});
    const QSignalSpy clicked(&nav, &CNavWidget::signal_onclicked);
    QAccessibleInterface* const list = of(nav);
    QAccessibleInterface* const last = list->child(2);
    QCOMPARE(last->actionInterface()->actionNames(),
             QStringList{QAccessibleActionInterface::pressAction()});
    pressPart(last);
    QCOMPARE(nav.selected, 2);
    QCOMPARE(nav.hover, 0);
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(clicked.last().first().toInt(), 2);
    pressPart(last);
    QCOMPARE(clicked.size(), 2);
    nav.setEnabled(false);
    pressPart(list->child(0));
    nav.setEnabled(true);
    nav.SetBtnList({text("a")});
    QVERIFY(!last->isValid());
    pressPart(last);
    QCOMPARE(clicked.size(), 2);
    QCOMPARE(nav.selected, 2);
    QCOMPARE(list->childCount(), 1);
}

TRADECONFIG_TEST_MAIN(tst_KitAccessibility)

#include "tst_KitAccessibility.moc"
