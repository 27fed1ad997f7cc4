#include "support/RecordingSkin.h"
#include "support/TestMain.h"
#include "tradeConfig/NavWidget.h"
#include "tradeConfig/SwitchEx.h"

#include <QAccessible>
#include <QSignalSpy>

#include <memory>

// What assistive technology is told while the switch bar and the navigation list change.
class tst_PartEvents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aSelectionOnTheBar();
    void theSelectionIsToldBeforeTheActionRuns();
    void aSelectionInTheList();
    void aSelectionAfterTheListWasReplaced();
    void newNames();
    void additions();
    void clearing();
    void aReplacedList();
    void whatChangesNoPart();
    void nobodyListens();
};

namespace {

QString text(const char* utf8) { return QString::fromUtf8(utf8); }

class Bar : public CSwitchEx {
public:
    Bar()
        : CSwitchEx(nullptr, Qt::Horizontal, QMargins())
    {
        resize(400, 40);
    }
    ~Bar() override { ClearAll(); }
};

class List : public CNavWidget {
public:
    explicit List(const QStringList& entries)
    {
        resize(120, 400);
        SetBtnList(entries);
    }
    void pressAt(int y) { QTest::mousePress(this, Qt::LeftButton, {}, {10, y}); }
};

bool someoneListens = true;

// One line an event: its name, the index and the name of the part, and for a changed state
// whether the part is selected now. An event of the widget itself has the widget's class instead.
QStringList& told()
{
    static QStringList lines;
    return lines;
}

QStringList takeTold() { return std::exchange(told(), {}); }

void pressPart(QWidget& widget, int index)
{
    QAccessible::queryAccessibleInterface(&widget)->child(index)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
}

} // namespace

// No platform plugin of a test run can be told that someone listens: these stand in for the
// toolkit's own. Like them, they look the interface up that an event is about.
bool QAccessible::isActive() { return someoneListens; }

void QAccessible::updateAccessibility(QAccessibleEvent* event)
{
    const QAccessibleInterface* const about = event->accessibleInterface();
    QVERIFY(about && about->isValid());
    QString line = QLatin1String(qAccessibleEventString(event->type()));
    if (event->child() >= 0)
        line += QStringLiteral(" %1 %2").arg(event->child()).arg(about->text(QAccessible::Name));
    else
        line += text(" ") + QLatin1String(event->object()->metaObject()->className());
    if (event->type() == QAccessible::StateChanged) {
        const auto changed = static_cast<QAccessibleStateChangeEvent*>(event)->changedStates();
        if (changed.selected)
            line += about->state().selected ? text(" selected") : text(" not selected");
    }
    told() << line;
}

void tst_PartEvents::init()
{
    RecordingSkin::reset();
    someoneListens = true;
    told().clear();
}

void tst_PartEvents::aSelectionOnTheBar()
{
    Bar bar;
    const auto a = bar.AddNormalSwitch(text("a"));
    bar.AddNormalSwitch(text("b"));
    const auto outer = bar.AddNormalSwitch(text("outer"), {}, true);
    bar.AddNormalSwitch(text("inner"), {}, true);
    takeTold();

    bar.SetCurSel(outer, false);
    QCOMPARE(takeTold(),
             (QStringList{text("Selection 3 outer"), text("StateChanged 3 outer selected")}));
    QTest::mousePress(&bar, Qt::LeftButton, {}, {60, 20});
    QCOMPARE(
        takeTold(),
        (QStringList{text("SelectionRemove 3 outer"), text("StateChanged 3 outer not selected"),
                     text("Selection 1 b"), text("StateChanged 1 b selected")}));
    pressPart(bar, 2);
    QCOMPARE(takeTold(),
             (QStringList{text("SelectionRemove 1 b"), text("StateChanged 1 b not selected"),
                          text("Selection 2 inner"), text("StateChanged 2 inner selected")}));

    // What is selected already is not told again.
    pressPart(bar, 2);
    bar.SetCurSel(a, false);
    takeTold();
    bar.SetCurSel(a, true);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, {10, 20});
    SwitchItem stranger;
    bar.SetCurSel(&stranger, true);
    bar.SetCurSel(nullptr, true);
    QCOMPARE(takeTold(), QStringList());
}

void tst_PartEvents::theSelectionIsToldBeforeTheActionRuns()
{
    auto bar = std::make_unique<Bar>();
    bar->AddNormalSwitch(text("a"), [] { told() << text("action"); });
    const auto b = bar->AddNormalSwitch(text("b"), [&] { bar.reset(); });
    takeTold();
    pressPart(*bar, 0);
    QCOMPARE(
        takeTold(),
        (QStringList{text("Selection 0 a"), text("StateChanged 0 a selected"), text("action")}));
    bar->SetCurSel(b, true);
    QVERIFY(!bar);
}

void tst_PartEvents::aSelectionInTheList()
{
    List list({text("a"), text("b"), text("c")});
    const QSignalSpy clicked(&list, &CNavWidget::signal_onclicked);
    takeTold();
    list.pressAt(60);
    const QStringList fromAToB{text("SelectionRemove 0 a"), text("StateChanged 0 a not selected"),
                               text("Selection 1 b"), text("StateChanged 1 b selected")};
    QCOMPARE(takeTold(), fromAToB);
    list.pressAt(60);
    QCOMPARE(takeTold(), QStringList());
    QCOMPARE(clicked.size(), 2);
    pressPart(list, 2);
    QCOMPARE(takeTold(),
             (QStringList{text("SelectionRemove 1 b"), text("StateChanged 1 b not selected"),
                          text("Selection 2 c"), text("StateChanged 2 c selected")}));
}

// The index stays behind the end of a shorter list: no entry loses the selection.
void tst_PartEvents::aSelectionAfterTheListWasReplaced()
{
    for (const QStringList& shorter :
         {QStringList{text("first"), text("second")}, QStringList{text("first")}}) {
        List list({text("a"), text("b"), text("c")});
        list.pressAt(110);
        list.SetBtnList(shorter);
        takeTold();
        list.pressAt(10);
        QCOMPARE(takeTold(),
                 (QStringList{text("Selection 0 first"), text("StateChanged 0 first selected")}));
    }
}

void tst_PartEvents::newNames()
{
    Bar bar;
    const auto a = bar.AddNormalSwitch(text("a"));
    bar.AddNormalSwitch(text("b"));
    bar.AddNormalSwitch(text("outer"), {}, true);
    bar.AddNormalSwitch(text("inner"), {}, true);
    takeTold();
    bar.SetItemLabel(a, text("a2"));
    QVERIFY(bar.ModifySwitch(text("b"), text("b2"), {}));
    QVERIFY(bar.ModifyImageSwitch(text("inner"), text("inner2"), {}, {}, {}));
    QCOMPARE(takeTold(),
             (QStringList{text("NameChanged 0 a2"), text("NameChanged 1 b2"),
                          text("NameChanged 2 inner2")}));
    SwitchItem stranger;
    bar.SetItemLabel(&stranger, text("x"));
    QVERIFY(!bar.ModifySwitch(text("none"), text("x"), {}));
    QVERIFY(!bar.ModifyImageSwitch(text("none"), text("x"), {}, {}, {}));
    QCOMPARE(takeTold(), QStringList());
}

void tst_PartEvents::additions()
{
    Bar bar;
    QCOMPARE(takeTold(), QStringList());
    bar.AddNormalSwitch(text("a"));
    QCOMPARE(takeTold(), QStringList{text("ObjectCreated 0 a")});
    bar.AddImageSwitch(text("b"), {}, {});
    QCOMPARE(takeTold(), QStringList{text("ObjectCreated 1 b")});
    bar.AddNormalSwitch(text("outer"), {}, true);
    QCOMPARE(takeTold(), QStringList{text("ObjectCreated 2 outer")});
    // From here on each has others behind it, which change their places.
    bar.AddNormalSwitch(text("inner"), {}, true);
    QCOMPARE(takeTold(),
             (QStringList{text("ObjectCreated 2 inner"), text("ObjectReorder CSwitchEx")}));
    bar.AddSeparator(5);
    QCOMPARE(takeTold(), (QStringList{text("ObjectCreated 2 "), text("ObjectReorder CSwitchEx")}));
}

void tst_PartEvents::clearing()
{
    Bar bar;
    const auto a = bar.AddNormalSwitch(text("a"));
    bar.AddNormalSwitch(text("e"), {}, true);
    bar.SetCurSel(a, false);
    takeTold();
    bar.ClearAll();
    QCOMPARE(takeTold(), (QStringList{text("ObjectDestroyed 0 a"), text("ObjectDestroyed 1 e")}));
    bar.ClearAll();
    QCOMPARE(takeTold(), QStringList());
    const auto b = bar.AddNormalSwitch(text("b"));
    QCOMPARE(takeTold(), QStringList{text("ObjectCreated 0 b")});
    // The one selected before is gone, so that none loses the selection.
    bar.SetCurSel(b, false);
    QCOMPARE(takeTold(), (QStringList{text("Selection 0 b"), text("StateChanged 0 b selected")}));
}

void tst_PartEvents::aReplacedList()
{
    List list({text("a"), text("b")});
    QCOMPARE(takeTold(), (QStringList{text("ObjectCreated 0 a"), text("ObjectCreated 1 b")}));
    list.SetBtnList({text("c")});
    QCOMPARE(takeTold(),
             (QStringList{text("ObjectDestroyed 0 a"), text("ObjectDestroyed 1 b"),
                          text("ObjectCreated 0 c")}));
    list.SetBtnList({});
    QCOMPARE(takeTold(), QStringList{text("ObjectDestroyed 0 c")});
}

void tst_PartEvents::whatChangesNoPart()
{
    Bar bar;
    bar.setItemSize(150);
    for (const char* name : {"a", "b", "c", "d"})
        bar.AddNormalSwitch(text(name));
    List list({text("a"), text("b")});
    takeTold();
    bar.DoClickMoreItem(false);
    QCOMPARE(bar.firstIndex, 1);
    QTest::mouseMove(&bar, {10, 10});
    bar.changeMode(CSwitchEx::ModeNavButton);
    bar.SetPadding(QMarginsF(1, 1, 1, 1));
    bar.resize(500, 50);
    bar.DoClickItem();
    QTest::mousePress(&bar, Qt::RightButton, {}, {10, 10});
    QTest::mousePress(&bar, Qt::LeftButton, {}, {490, 20});
    list.pressAt(0);
    list.pressAt(120);
    QTest::mouseMove(&list, {10, 60});
    QCOMPARE(takeTold(), QStringList());
}

void tst_PartEvents::nobodyListens()
{
    someoneListens = false;
    Bar bar;
    bar.AddNormalSwitch(text("a"));
    const auto b = bar.AddNormalSwitch(text("b"), {}, true);
    bar.SetCurSel(b, true);
    QTest::mousePress(&bar, Qt::LeftButton, {}, {10, 20});
    bar.SetItemLabel(b, text("b2"));
    bar.ClearAll();
    List list({text("a"), text("b")});
    list.pressAt(60);
    list.SetBtnList({});
    QCOMPARE(takeTold(), QStringList());
}

TRADECONFIG_TEST_MAIN(tst_PartEvents)

#include "tst_PartEvents.moc"
