#include "support/RecordingSkin.h"
#include "support/TestMain.h"
#include "tradeConfig/SwitchEx.h"

#include <QRandomGenerator>

#include <cmath>
#include <vector>

class tst_SwitchExRandom : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void operations_data();
    void operations();
};

namespace {

enum { X = 0, Y = 1 };

template <typename Number> struct Pair {
    Number values[2];

    Number& operator[](int axis) { return values[axis]; }
    const Number& operator[](int axis) const { return values[axis]; }
};

// A cell as position and size along both axes.
struct Cell {
    Pair<double> at{{0, 0}};
    Pair<double> size{{0, 0}};

    bool holds(Pair<double> point) const
    {
        for (const int axis : {X, Y}) {
            const double a = at[axis];
            const double b = at[axis] + size[axis];
            if (a == b || point[axis] < std::min(a, b) || point[axis] > std::max(a, b))
                return false;
        }
        return true;
    }
};

struct Entry {
    int id;
    int action = 0; // what its action logs; 0: it has none
    std::string label;
    bool separator = false;
    bool image = false;
    Pair<double> imageSize{{0, 0}};
    Cell cell;
};

// Plain text metrics, exact in binary.
Pair<double> textSize(const std::string& label)
{
    return {{7.25 * double(label.size()), label.size() % 3 == 0 ? 15.5 : 18.0}};
}

/// The bar in the plainest words: one axis along, one across, everything laid out anew each time.
struct Model {
    std::vector<Entry> mains;
    std::vector<Entry> ends;
    Pair<int> widget{{300, 40}};
    int along = X;
    int mode = 2;
    int fixedSize = 0;
    double padding[4]{0, 0, 0, 0}; // left, top, right, bottom
    int first = 0;
    int shown = 0;
    bool buttons = false;
    Cell buttonArea;
    int selected = 0; // ids; 0 is none
    int hovered = 0;
    int nextId = 1;
    std::vector<int> log; // of the actions run
    bool rounded = false; // some cells are fractions that binary numbers cannot hold

    int across() const { return 1 - along; }

    Pair<double> measure(const Entry& entry) const
    {
        Pair<double> size = entry.imageSize;
        if (!entry.image) {
            size = textSize(entry.label);
            size[across()] = widget[across()];
            size[along] += along == X ? 30 : 10;
        }
        size[X] += padding[0] + padding[2];
        size[Y] += padding[1] + padding[3];
        return size;
    }

    double extentOfAll() const
    {
        double sum = 0;
        for (const auto* list : {&mains, &ends})
            for (const Entry& entry : *list)
                sum += entry.cell.size[along];
        return sum;
    }

    double extentNeeded() const
    {
        double longest = 0;
        for (const Entry& entry : mains)
            longest = std::max(longest, entry.cell.size[along]);
        double sum = longest + 38;
        for (const Entry& entry : ends)
            sum += entry.cell.size[along];
        return sum;
    }

    void layOut()
    {
        if (mains.empty() && ends.empty())
            return;
        const double length = widget[along];
        const double breadth = widget[across()];
        if (mode == 1) {
            rounded = true;
            first = 0;
            buttons = false;
            const double share = length / double(mains.size() + ends.size());
            for (std::size_t i = 0; i < mains.size(); ++i) {
                mains[i].cell.at[along] = double(i) * share;
                mains[i].cell.at[across()] = 0;
                mains[i].cell.size[along] = share;
                mains[i].cell.size[across()] = breadth;
            }
            for (std::size_t i = 0; i < ends.size(); ++i) {
                ends[i].cell.at[along] = length - double(i + 1) * share;
                ends[i].cell.at[across()] = 0;
                ends[i].cell.size[along] = share;
                ends[i].cell.size[across()] = breadth;
            }
            return;
        }
        const bool fits = length >= extentOfAll();
        double edge = length;
        for (Entry& entry : ends) {
            edge -= entry.cell.size[along];
            entry.cell.at[along] = edge;
            entry.cell.size[across()] = breadth;
        }
        buttons = !fits;
        buttonArea = Cell();
        double room = length;
        if (fits) {
            first = 0;
        } else {
            room = edge - 38;
            buttonArea.at[along] = room;
            buttonArea.size[along] = 38;
            buttonArea.size[across()] = breadth;
            double rest = 0;
            for (std::size_t i = std::size_t(first); i < mains.size(); ++i)
                rest += mains[i].cell.size[along];
            while (first > 0) {
                const Cell& previous = mains[std::size_t(first) - 1].cell;
                if (!(rest + previous.size[X] < room))
                    break;
                rest += previous.size[along];
                --first;
            }
        }
        shown = 0;
        double end = 0;
        for (std::size_t i = std::size_t(first); i < mains.size(); ++i) {
            Cell& cell = mains[i].cell;
            end += cell.size[along];
            if (!fits && end > room)
                break;
            cell.at[along] = end - cell.size[along];
            cell.size[across()] = breadth;
            ++shown;
        }
    }

    void measureAll()
    {
        for (auto* list : {&mains, &ends})
            for (Entry& entry : *list)
                entry.cell.size = measure(entry);
        rounded = false;
        layOut();
    }

    int add(Entry entry, bool atEnd)
    {
        (atEnd ? ends : mains).push_back(entry);
        layOut();
        return entry.id;
    }

    void scroll(bool back)
    {
        const int before = first;
        if (back && first > 0)
            --first;
        if (!back && first + shown < int(mains.size()))
            ++first;
        if (first != before)
            layOut();
    }

    const Entry* find(Pair<double> point, bool click)
    {
        if (buttons && buttonArea.holds(point)) {
            if (click)
                scroll(point[along] < buttonArea.at[along] + buttonArea.size[along] / 2);
            return nullptr;
        }
        for (const Entry& entry : ends)
            if (entry.cell.holds(point))
                return &entry;
        for (std::size_t i = std::size_t(first); i < mains.size(); ++i)
            if (mains[i].cell.holds(point))
                return &mains[i];
        return nullptr;
    }

    Entry* named(const std::string& label)
    {
        for (auto* list : {&mains, &ends})
            for (Entry& entry : *list)
                if (entry.label == label)
                    return &entry;
        return nullptr;
    }

    void press(Pair<double> point)
    {
        const Entry* entry = find(point, false);
        if (entry && !entry->separator)
            selected = entry->id;
    }

    void release(Pair<double> point)
    {
        const Entry* entry = find(point, true);
        if (entry && entry->id == selected && entry->action != 0)
            log.push_back(entry->action);
    }

    void clear()
    {
        mains.clear();
        ends.clear();
        first = 0;
        selected = hovered = 0;
        rounded = false;
        buttons = false;
        buttonArea = Cell();
    }
};

bool same(double a, double b) { return std::abs(a - b) < 1e-7; }

bool same(const QRectF& rect, const Cell& cell)
{
    return same(rect.x(), cell.at[X]) && same(rect.y(), cell.at[Y])
        && same(rect.width(), cell.size[X]) && same(rect.height(), cell.size[Y]);
}

} // namespace

void tst_SwitchExRandom::operations_data()
{
    QTest::addColumn<int>("additions"); // out of 100 operations, about
    QTest::addColumn<int>("length"); // of the longest bar
    QTest::addColumn<bool>("odd"); // extents of zero and below, equal division

    QTest::newRow("few items") << 15 << 700 << true;
    QTest::newRow("many items") << 60 << 700 << true;
    QTest::newRow("long bar") << 70 << 6000 << true;
    QTest::newRow("plain, many items") << 60 << 700 << false;
    QTest::newRow("plain, long bar") << 80 << 6000 << false;
}

void tst_SwitchExRandom::operations()
{
    QFETCH(int, additions);
    QFETCH(int, length);
    QFETCH(bool, odd);
    const auto given = qEnvironmentVariableIntValue("SWITCH_SEED");
    const quint32 seed = given ? quint32(given) : QRandomGenerator::system()->generate();
    qInfo("SWITCH_SEED=%u", seed);
    QRandomGenerator random(seed);

    RecordingSkin::reset();
    RecordingSkin::setTextSize([](const QString&, const QString& label) {
        const auto size = textSize(label.toStdString());
        return QSizeF(size[X], size[Y]);
    });
    const Pair<double> images[]{{{24.75, 20.5}}, {{0, 0}}, {{70, 33.25}}};
    for (int i = 0; i < 3; ++i)
        RecordingSkin::setBitmapSize(QStringLiteral("image%1").arg(i),
                                     QSizeF(images[i][X], images[i][Y]));

    QWidget parent;
    parent.resize(length, length);
    parent.show();
    CSwitchEx bar(&parent, Qt::Horizontal, QMargins());
    bar.resize(300, 40);
    bar.show();
    Model model;
    QHash<SwitchItem*, int> ids;
    std::vector<int> log;
    int step = 0;

    const auto below = [&](int bound) { return int(random.bounded(bound)); };
    const auto label = [&] { return std::string(std::size_t(below(9)), char('a' + below(3))); };
    const auto point = [&] {
        // Whole and half pixels meet an edge now and then; where rounding would decide about
        // that, the points lie beside them.
        const double offset = model.rounded ? 0.0371 : 0;
        Pair<double> at;
        at[model.along] = below(2 * model.widget[model.along] + 40) / 2.0 - 10 + offset;
        at[model.across()] = below(140) / 2.0 - 5 + offset;
        return at;
    };
    const auto mouse = [&bar](QEvent::Type type, Pair<double> at) {
        const bool move = type == QEvent::MouseMove;
        QMouseEvent event(type, QPointF(at[X], at[Y]), move ? Qt::NoButton : Qt::LeftButton,
                          move ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&bar, &event);
    };

    const auto addOne = [&] {
        const bool atEnd = below(4) == 0;
        Entry entry;
        entry.id = model.nextId++;
        entry.action = entry.id;
        const auto action = [&log, id = entry.id] { log.push_back(id); };
        SwitchItem* item = nullptr;
        const int kind = below(10);
        if (kind < 2) {
            entry.separator = true;
            entry.action = 0;
            const int thickness = odd ? below(24) - 3 : 1 + below(20);
            entry.cell.size[model.along] = thickness;
            entry.cell.size[model.across()] = model.widget[model.across()];
            item = bar.AddSeparator(thickness, atEnd);
        } else if (kind < 4) {
            entry.label = label();
            entry.image = true;
            const int which = below(odd ? 3 : 1);
            entry.imageSize = images[which];
            const auto measured = model.measure(entry);
            entry.cell.size[model.along] = std::trunc(measured[model.along]);
            entry.cell.size[model.across()] = model.widget[model.across()];
            item = bar.AddImageSwitch(QString::fromStdString(entry.label),
                                      QStringLiteral("image%1").arg(which), QStringLiteral("other"),
                                      action, atEnd);
        } else {
            entry.label = label();
            if (model.fixedSize == 0) {
                entry.cell.size = model.measure(entry);
            } else {
                entry.cell.size[model.along] = model.fixedSize;
                entry.cell.size[model.across()] = model.widget[model.across()];
            }
            item = bar.AddNormalSwitch(QString::fromStdString(entry.label), action, atEnd, nullptr);
        }
        ids.insert(item, model.add(entry, atEnd));
    };

    const auto operate = [&] {
        if (below(100) < additions) {
            addOne();
            return;
        }
        switch (below(16)) {
        case 0: {
            const int mode = odd ? 1 + below(8) : 2 + below(6);
            model.mode = mode;
            model.layOut();
            bar.changeMode(CSwitchEx::SwitchMode(mode));
            break;
        }
        case 1: {
            const bool horizontal = below(2) == 0;
            model.along = horizontal ? X : Y;
            model.layOut();
            bar.setOrientation(horizontal ? Qt::Horizontal : Qt::Vertical);
            break;
        }
        case 2:
            if (below(4) == 0) {
                model.fixedSize = below(3) ? 20 + below(100) : 0;
                model.measureAll();
                bar.setItemSize(model.fixedSize);
            }
            break;
        case 3:
            if (below(4) == 0) {
                const int lowest = odd ? -8 : 0;
                for (double& side : model.padding)
                    side = (lowest + below(20)) / 4.0;
                model.measureAll();
                bar.SetPadding(QMarginsF(model.padding[0], model.padding[1], model.padding[2],
                                         model.padding[3]));
            }
            break;
        case 4:
        case 5: {
            Pair<int> size{{0, 0}};
            size[model.along] = 1 + below(length);
            size[model.across()] = 30 + below(30);
            const bool resized = size[X] != model.widget[X] || size[Y] != model.widget[Y];
            model.widget = size;
            if (below(4) == 0) {
                // A hidden bar has its new size before the event.
                bar.hide();
                bar.resize(size[X], size[Y]);
                addOne();
                model.layOut();
                bar.show();
            } else if (resized) {
                model.layOut();
                bar.resize(size[X], size[Y]);
            }
            break;
        }
        case 6:
        case 7:
        case 8: {
            const bool back = below(3) == 0;
            model.scroll(back);
            bar.DoClickMoreItem(back);
            break;
        }
        case 9:
        case 10: {
            const auto at = point();
            const auto other = below(3) ? at : point();
            model.press(at);
            mouse(QEvent::MouseButtonPress, at);
            model.release(other);
            mouse(QEvent::MouseButtonRelease, other);
            break;
        }
        case 11: {
            const auto at = point();
            const Entry* entry = model.find(at, false);
            model.hovered = entry ? entry->id : 0;
            mouse(QEvent::MouseMove, at);
            break;
        }
        case 12: {
            const std::string from = label();
            const std::string to = label();
            const int action = 100000 + step;
            Entry* const entry = model.named(from);
            if (entry) {
                entry->label = to;
                entry->action = action;
            }
            QCOMPARE(bar.ModifySwitch(QString::fromStdString(from), QString::fromStdString(to),
                                      [&log, action] { log.push_back(action); }),
                     entry != nullptr);
            break;
        }
        case 13:
            if (!model.mains.empty()) {
                const int index = below(int(model.mains.size()));
                model.mains[std::size_t(index)].label = label();
                bar.SetItemLabel(bar.items[index],
                                 QString::fromStdString(model.mains[std::size_t(index)].label));
            }
            break;
        case 14:
            if (!model.mains.empty()) {
                const int index = below(int(model.mains.size()));
                model.selected = model.mains[std::size_t(index)].id;
                bar.SetCurSel(bar.items[index], false);
            }
            break;
        case 15:
            if (below(6) == 0) {
                model.clear();
                ids.clear();
                bar.ClearAll();
            }
            break;
        }
    };

    for (; step < 2000; ++step) {
        operate();
        if (QTest::currentTestFailed())
            return;
        const auto at = [&](const char* what) {
            return QStringLiteral("%1 after %2 operations of seed %3")
                .arg(QLatin1String(what))
                .arg(step + 1)
                .arg(seed)
                .toUtf8();
        };
        QVERIFY2(bar.firstIndex == model.first, at("firstIndex").constData());
        QVERIFY2(bar.visibleCount == model.shown, at("visibleCount").constData());
        QVERIFY2(bar.moreShown == model.buttons, at("moreShown").constData());
        QVERIFY2(same(bar.moreRect, model.buttonArea), at("moreRect").constData());
        QVERIFY2(same(bar.GetMaximumSize(), model.extentOfAll()), at("GetMaximumSize").constData());
        QVERIFY2(same(bar.GetMinimumSize(), model.extentNeeded()),
                 at("GetMinimumSize").constData());
        QVERIFY2(ids.value(bar.curSel) == model.selected, at("curSel").constData());
        QVERIFY2(ids.value(bar.hoverItem) == model.hovered, at("hoverItem").constData());
        QVERIFY2(log == model.log, at("the actions run").constData());
        QCOMPARE(bar.items.size(), int(model.mains.size()));
        QCOMPARE(bar.endItems.size(), int(model.ends.size()));
        for (int i = 0; i < bar.items.size(); ++i)
            QVERIFY2(same(bar.items[i]->rect, model.mains[std::size_t(i)].cell),
                     at("a main item's cell").constData());
        for (int i = 0; i < bar.endItems.size(); ++i)
            QVERIFY2(same(bar.endItems[i]->rect, model.ends[std::size_t(i)].cell),
                     at("an end item's cell").constData());
    }
    bar.ClearAll();
}

TRADECONFIG_TEST_MAIN(tst_SwitchExRandom)

#include "tst_SwitchExRandom.moc"
