#include "bench/Subjects.h"

#include "bench/BenchRecord.h"
#include "bench/FloorDialog.h"
#include "bench/FloorKit.h"
#include "bench/Stage.h"
#include "libskin/SkinLibrary.h"
#include "tradeConfig/CTradeConfigWidget.h"
#include "tradeConfig/NavWidget.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/skin/CSkin.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSvgRenderer>
#include <QTabBar>

#include <cstring>
#include <memory>

namespace {

constexpr int itemExtent = 20;
constexpr int roomyExtent = 100; // more than a measured item of four digits takes
constexpr int barHeight = 60;
constexpr int barWidth = 657;

// The two sides under one name each, so that a subject is written once.

struct ModuleSide {
    using Dialog = CTradeConfigWidget;
    using List = CNavWidget;
    using Bar = CSwitchEx;

    static void confirm(Dialog& dialog) { dialog.WriteAllParm(); }
    static void fill(List& list, const QStringList& entries) { list.SetBtnList(entries); }
    static std::unique_ptr<Bar> makeBar()
    {
        auto bar = std::make_unique<Bar>(nullptr, Qt::Horizontal, QMargins());
        bar->changeMode(CSwitchEx::ModeNavButton);
        bar->setBackgroundColorEnable(false);
        bar->setItemSize(itemExtent);
        return bar;
    }
    static SwitchItem* add(Bar& bar, const QString& label) { return bar.AddNormalSwitch(label); }
    static void select(Bar& bar, SwitchItem* item) { bar.SetCurSel(item, false); }
    static void clear(Bar& bar) { bar.ClearAll(); }
};

struct FloorSide {
    using Dialog = FloorDialog;
    using List = FloorList;
    using Bar = FloorBar;

    static void confirm(Dialog& dialog) { dialog.confirm(); }
    static void fill(List& list, const QStringList& entries) { list.entries = entries; }
    static std::unique_ptr<Bar> makeBar() { return std::make_unique<Bar>(); }
    static int add(Bar& bar, const QString& label)
    {
        bar.add(label, itemExtent);
        return 0;
    }
    static void select(Bar&, int) { }
    static void clear(Bar&) { }
};

template <typename Side> struct DialogStage {
    BenchTrade trade;
    std::unique_ptr<typename Side::Dialog> dialog;

    void construct() { dialog = std::make_unique<typename Side::Dialog>(&trade); }
    void destroy() { dialog.reset(); }
    void open()
    {
        construct();
        Stage::open(*dialog);
    }
};

// A subject whose state lives as long as its functions.
template <typename State, typename Before, typename Run, typename After>
Subject subject(std::shared_ptr<State> state, Before before, Run run, After after)
{
    return {[state, before] { before(*state); }, [state, run] { run(*state); },
            [state, after] { after(*state); }};
}

template <typename State, typename Run> Subject subject(std::shared_ptr<State> state, Run run)
{
    return {nullptr, [state, run] { run(*state); }, nullptr};
}

template <typename Side> Subject construct()
{
    using State = DialogStage<Side>;
    return subject(
        std::make_shared<State>(), [](State&) {}, [](State& s) { s.construct(); },
        [](State& s) { s.destroy(); });
}

template <typename Side> Subject openDialog()
{
    using State = DialogStage<Side>;
    return subject(
        std::make_shared<State>(), [](State&) {}, [](State& s) { s.open(); },
        [](State& s) { s.destroy(); });
}

template <typename Side> Subject openAndClose()
{
    using State = DialogStage<Side>;
    return subject(std::make_shared<State>(), [](State& s) {
        s.open();
        s.dialog->close();
        s.destroy();
    });
}

template <typename Side> Subject destroy()
{
    using State = DialogStage<Side>;
    return subject(
        std::make_shared<State>(), [](State& s) { s.open(); }, [](State& s) { s.destroy(); },
        [](State&) {});
}

template <typename Side> Subject confirm()
{
    using State = DialogStage<Side>;
    auto state = std::make_shared<State>();
    state->construct();
    return subject(state, [](State& s) { Side::confirm(*s.dialog); });
}

template <typename Side> Subject switchPages()
{
    using State = DialogStage<Side>;
    auto state = std::make_shared<State>();
    state->open();
    return subject(state, [](State& s) { Stage::walkPages(*s.dialog, Stage::settle); });
}

// A captured key that is free, and one that another row holds.
struct Capture {
    int key;
    Qt::KeyboardModifiers modifiers;
};
constexpr Capture freeKey = {Qt::Key_F6, Qt::NoModifier};
constexpr Capture otherFreeKey = {Qt::Key_F7, Qt::NoModifier};
constexpr Capture takenKey = {Qt::Key_A, Qt::ControlModifier};
constexpr int capturingRow = 3;

template <typename Side> struct CaptureStage : DialogStage<Side> {
    QWidget* editor = nullptr;
    bool second = false;

    CaptureStage()
    {
        this->open();
        const QWidget& window = *this->dialog;
        Stage::click(*window.findChild<QWidget*>(QStringLiteral("switchex_widget")),
                     QPoint(2 * 219 + 100, 30));
        Stage::settle();
        editor = window.findChild<QTableWidget*>(QStringLiteral("tableWidget_shortcut"))
                     ->cellWidget(capturingRow, 1);
    }

    void capture(const Capture& one, const Capture& other)
    {
        second = !second;
        const Capture& capture = second ? one : other;
        Stage::press(*editor, capture.key, capture.modifiers);
    }
};

template <typename Side> Subject captureAccepted()
{
    using State = CaptureStage<Side>;
    return subject(std::make_shared<State>(), [](State& s) { s.capture(freeKey, otherFreeKey); });
}

template <typename Side> Subject captureTurning()
{
    using State = CaptureStage<Side>;
    return subject(std::make_shared<State>(), [](State& s) { s.capture(freeKey, takenKey); });
}

template <typename Side> Subject captureTurningRepainted()
{
    using State = CaptureStage<Side>;
    return subject(std::make_shared<State>(), [](State& s) {
        s.capture(freeKey, takenKey);
        Stage::settle();
    });
}

template <typename Side> std::unique_ptr<typename Side::Bar> filledBar(int count, int width)
{
    auto bar = Side::makeBar();
    bar->resize(width, barHeight);
    Side::select(*bar, Side::add(*bar, QStringLiteral("0")));
    for (int index = 1; index < count; ++index)
        Side::add(*bar, QString::number(index));
    return bar;
}

// The bar at the top of a window, as in the dialog.
template <typename Side> struct BarStage {
    QWidget window;
    std::unique_ptr<typename Side::Bar> bar;

    BarStage(int count, int width)
        : bar(filledBar<Side>(count, width))
    {
        window.resize(width + 2, 2 * barHeight);
        bar->setParent(&window);
        bar->move(1, 1);
        Stage::open(window);
    }
    ~BarStage() { Side::clear(*bar); }
};

template <typename Side> Subject repaintBar(int count, int width)
{
    using State = BarStage<Side>;
    return subject(std::make_shared<State>(count, width), [](State& s) { s.bar->repaint(); });
}

template <typename Side> struct ListStage {
    typename Side::List list;

    ListStage()
    {
        Side::fill(
            list,
            {QStringLiteral("基础设置"), QStringLiteral("联动设置"), QStringLiteral("界面设置")});
        list.resize(120, 530);
        Stage::open(list);
    }
};

template <typename Side> Subject repaintList()
{
    using State = ListStage<Side>;
    return subject(std::make_shared<State>(), [](State& s) { s.list.repaint(); });
}

// A bar that is filled before it is shown, as the dialog fills its own. Both measure their texts.

struct SwitchFilling {
    using Bar = CSwitchEx;

    static void add(Bar& bar, const QString& label) { bar.AddNormalSwitch(label); }
    static void place(Bar&) { }
    static void clear(Bar& bar) { bar.ClearAll(); }
};

struct TabFilling {
    using Bar = QTabBar;

    static void add(Bar& bar, const QString& label) { bar.addTab(label); }
    // It lays its tabs out when asked where one is, all of them at once.
    static void place(Bar& bar) { bar.tabRect(bar.count() - 1); }
    static void clear(Bar&) { }
};

template <typename Filling> Subject fillBar(int count, int width)
{
    struct State {
        QStringList labels;
        std::unique_ptr<typename Filling::Bar> bar;
    };
    auto state = std::make_shared<State>();
    for (int index = 0; index < count; ++index)
        state->labels << QString::number(index);
    return subject(
        state,
        [width](State& s) {
            s.bar = std::make_unique<typename Filling::Bar>();
            s.bar->resize(width, barHeight);
        },
        [](State& s) {
            for (const QString& label : qAsConst(s.labels))
                Filling::add(*s.bar, label);
            Filling::place(*s.bar);
        },
        [](State& s) {
            Filling::clear(*s.bar);
            s.bar.reset();
        });
}

// The skin service

QString skinFolder()
{
    return QCoreApplication::applicationDirPath()
        + QStringLiteral("/../share/tradeConfig/skins/light");
}

Subject loadSkin()
{
    const QString folder = skinFolder();
    return {nullptr, [folder] { CorvelSkin::SkinLibrary::instance()->load(folder); }, nullptr};
}

// The same files, read and parsed, and no more.
Subject loadSkinFiles()
{
    const QString folder = skinFolder();
    const auto read = [](const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    return {nullptr,
            [folder, read] {
                const auto table
                    = QJsonDocument::fromJson(read(folder + QStringLiteral("/skin.json")));
                const QJsonObject images = table.object()[QLatin1String("images")].toObject();
                for (const auto& image : images) {
                    const QString file = image.toObject()[QLatin1String("file")].toString();
                    const QSvgRenderer drawing(read(folder + QLatin1Char('/') + file));
                    Q_UNUSED(drawing)
                }
            },
            nullptr};
}

const QStringList& lookedUpKeys()
{
    static const QStringList keys
        = {QStringLiteral("logo"), QStringLiteral("win_minimize"), QStringLiteral("win_renew"),
           QStringLiteral("win_normal"), QStringLiteral("PanelClose")};
    return keys;
}

constexpr int lookupRounds = 200;

Subject lookUp()
{
    return {nullptr,
            [] {
                for (int round = 0; round < lookupRounds; ++round) {
                    for (const QString& key : lookedUpKeys())
                        CorvelSkin::CSkin::Instance()->GetBitmapSize(key);
                }
            },
            nullptr};
}

Subject lookUpInHash()
{
    struct State {
        QHash<QString, QSizeF> sizes;
        QSizeF sum;
    };
    auto state = std::make_shared<State>();
    for (const QString& key : lookedUpKeys())
        state->sizes.insert(key, QSizeF(14, 14));
    return subject(state, [](State& s) {
        for (int round = 0; round < lookupRounds; ++round) {
            for (const QString& key : lookedUpKeys())
                s.sum += s.sizes.value(key);
        }
    });
}

template <typename Side> std::vector<QImage> pagesOf(DialogStage<Side>& stage)
{
    std::vector<QImage> pages;
    stage.open();
    Stage::walkPages(*stage.dialog, [&] {
        Stage::settle();
        pages.push_back(stage.dialog->grab().toImage());
    });
    stage.destroy();
    return pages;
}

std::vector<SubjectEntry> makeSubjects()
{
    std::vector<SubjectEntry> list;
    const auto both = [&list](std::string name, std::function<Subject()> module,
                              std::function<Subject()> floor) {
        list.push_back({name, "module", std::move(module)});
        list.push_back({std::move(name), "floor", std::move(floor)});
    };
    both("construct", construct<ModuleSide>, construct<FloorSide>);
    both("open", openDialog<ModuleSide>, openDialog<FloorSide>);
    both("open and close", openAndClose<ModuleSide>, openAndClose<FloorSide>);
    both("destroy", destroy<ModuleSide>, destroy<FloorSide>);
    both("confirm", confirm<ModuleSide>, confirm<FloorSide>);
    both("page switch and repaint", switchPages<ModuleSide>, switchPages<FloorSide>);
    both("key capture, accepted", captureAccepted<ModuleSide>, captureAccepted<FloorSide>);
    both("key capture, verdict turns", captureTurning<ModuleSide>, captureTurning<FloorSide>);
    both("key capture, verdict turns, repaint", captureTurningRepainted<ModuleSide>,
         captureTurningRepainted<FloorSide>);
    both("navigation list repaint", repaintList<ModuleSide>, repaintList<FloorSide>);

    const auto bar = [&both](const char* name, int count, int width) {
        both(
            name, [=] { return repaintBar<ModuleSide>(count, width); },
            [=] { return repaintBar<FloorSide>(count, width); });
    };
    bar("switch bar repaint, 3", 3, barWidth);
    bar("switch bar repaint, 30", 30, barWidth);
    bar("switch bar repaint, 1000 scrolled", 1000, barWidth);
    bar("switch bar repaint, 1000 in sight", 1000, 1000 * itemExtent);

    for (const int count : {10, 100, 1000}) {
        const auto fill = [&list, count](const char* how, int width) {
            const std::string name = "fill " + std::to_string(count) + how;
            list.push_back({name, "module", [=] { return fillBar<SwitchFilling>(count, width); }});
            list.push_back({name, "QTabBar", [=] { return fillBar<TabFilling>(count, width); }});
        };
        fill(" scrolled", barWidth);
        fill(" in sight", count * roomyExtent);
    }

    both("load a skin", loadSkin, loadSkinFiles);
    both("1000 lookups", lookUp, lookUpInHash);
    return list;
}

} // namespace

const std::vector<SubjectEntry>& subjects()
{
    static const std::vector<SubjectEntry> list = makeSubjects();
    return list;
}

std::vector<std::string> differences()
{
    std::vector<std::string> found;
    const auto compare
        = [&found](const QImage& module, const QImage& floor, const std::string& what) {
              if (module == floor)
                  return;
              found.push_back(what + " looks different");
              module.save(QStringLiteral("module-%1.png").arg(found.size()));
              floor.save(QStringLiteral("floor-%1.png").arg(found.size()));
          };

    // One after the other: only one window at a time has the focus.
    DialogStage<ModuleSide> module;
    DialogStage<FloorSide> floor;
    const std::vector<QImage> modulePages = pagesOf(module);
    const std::vector<QImage> floorPages = pagesOf(floor);
    for (std::size_t page = 0; page < modulePages.size(); ++page)
        compare(modulePages[page], floorPages[page], "view " + std::to_string(page));

    module.construct();
    module.dialog->WriteAllParm();
    floor.construct();
    floor.dialog->confirm();
    const TradeParm& one = *module.trade.GetTradeParm();
    const TradeParm& other = *floor.trade.GetTradeParm();
    if (std::memcmp(&one, &other, offsetof(TradeParm, defaultPage)) != 0
        || std::memcmp(&one.lockMinutes, &other.lockMinutes,
                       offsetof(TradeParm, stockShortcuts) - offsetof(TradeParm, lockMinutes))
            != 0)
        found.push_back("the stored numbers differ");
    for (int entry = 0; entry < 13; ++entry) {
        if (one.stockShortcuts[entry] != other.stockShortcuts[entry]
            || one.creditShortcuts[entry] != other.creditShortcuts[entry])
            found.push_back("stored key " + std::to_string(entry) + " differs");
    }
    if (module.trade.saves != 1 || floor.trade.saves != 1)
        found.push_back("not saved once");

    struct BarCase {
        int count;
        int width;
    };
    for (const BarCase& bar :
         {BarCase{3, barWidth}, {30, barWidth}, {1000, barWidth}, {1000, 1000 * itemExtent}}) {
        BarStage<ModuleSide> moduleBar(bar.count, bar.width);
        BarStage<FloorSide> floorBar(bar.count, bar.width);
        compare(moduleBar.bar->grab().toImage(), floorBar.bar->grab().toImage(),
                "bar of " + std::to_string(bar.count));
    }
    ListStage<ModuleSide> moduleList;
    ListStage<FloorSide> floorList;
    compare(moduleList.list.grab().toImage(), floorList.list.grab().toImage(), "list");
    return found;
}
