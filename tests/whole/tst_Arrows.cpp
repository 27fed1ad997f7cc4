#include "support/Files.h"
#include "support/TestMain.h"

#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <vector>

// Which source may know which. docs/architecture.md draws what stands here as a list.

namespace {

/// Units that stand level: each may include what stands lower. A unit is a file without its
/// extension; the unit of a form is what is generated from it.
struct Level {
    const char* units; ///< separated by spaces; a star is any name in that folder
    bool together = false; ///< they may include one another, in no circle
};

/// What one folder may take of another. Where there is no door there is no way.
struct Door {
    const char* from;
    const char* into;
    const char* units;
};

struct House {
    std::vector<Level> levels; ///< from above
    std::vector<Door> doors;
    const char* master; ///< the class that nobody below its own unit names
    const char* masterUnit;
};

constexpr const char* skinService = "SkinExport SkinLibrary SkinTable";
constexpr const char* moduleForClient
    = "HeldKeys ITrade ModuleEntry PackedText platform/HostPlatform skin/*";
constexpr const char* kitForHosts
    = "CaptionBar ImageButton MarkShade MessageBox NavWidget PageStack SwitchEx "
      "TableLineEdit TipLabel WrapLabel skin/*";

const House& house()
{
    static const House sources{
        {
            {"client/main client/restart/main"},
            {"client/*", true},
            {"gallery/*", true},
            {"appearance/*", true},
            {"libskin/*", true},
            {"designer/*", true},

            {"tradeConfig/ModuleEntry"},
            {"tradeConfig/CTradeConfigWidget tradeConfig/CTradeConfigWidgetEdit", true},

            {"tradeConfig/dialog/ParmBinding tradeConfig/dialog/ShortcutTable"},
            {"tradeConfig/dialog/ButtonKeys tradeConfig/dialog/ChoiceLists "
             "tradeConfig/dialog/InterfaceSettings tradeConfig/dialog/PageKeys "
             "tradeConfig/dialog/RisePrice tradeConfig/dialog/RowLabels "
             "tradeConfig/dialog/RuleLines "
             "tradeConfig/dialog/SplitGroup tradeConfig/dialog/StatusDelegate "
             "tradeConfig/dialog/StyleMark "
             "tradeConfig/dialog/TabWalk tradeConfig/dialog/WheelGuard"},
            {"tradeConfig/dialog/AccessibleNames tradeConfig/dialog/CodeList "
             "tradeConfig/dialog/FormText "
             "tradeConfig/dialog/QuantityValidator "
             "tradeConfig/dialog/SplitRules"},
            {"tradeConfig/ui_CTradeConfigWidget"},

            {"tradeConfig/MessageBox"},
            {"tradeConfig/ui_MessageBox"},
            {"tradeConfig/CaptionBar"},
            {"tradeConfig/NavWidgetAccessible tradeConfig/SwitchExAccessible "
             "tradeConfig/TableLineEditAccessible tradeConfig/TipLabelAccessible"},
            {"tradeConfig/SwitchEx tradeConfig/SwitchExEvents tradeConfig/SwitchExLayout "
             "tradeConfig/SwitchExPaint",
             true},
            {"tradeConfig/ImageButton tradeConfig/MarkShade tradeConfig/NavWidget "
             "tradeConfig/PageStack "
             "tradeConfig/TableLineEdit tradeConfig/TipLabel tradeConfig/WrapLabel"},
            {"tradeConfig/HeldKeys"},
            {"tradeConfig/AccessibleFactory tradeConfig/CellTableAccessible tradeConfig/PartEvents "
             "tradeConfig/PartsAccessible tradeConfig/ReadableColour "
             "tradeConfig/SheetFont tradeConfig/SwitchAxis"},

            {"tradeConfig/skin/*", true},
            {"tradeConfig/platform/*", true},
            {"tradeConfig/ITrade tradeConfig/PackedText"},
        },
        {
            {"client", "appearance", "*"},
            {"client", "gallery", "Gallery"},
            {"client", "libskin", skinService},
            {"client", "tradeConfig", moduleForClient},
            {"gallery", "appearance", "*"},
            {"gallery", "tradeConfig", kitForHosts},
            {"appearance", "libskin", skinService},
            {"appearance", "tradeConfig", "ReadableColour skin/*"},
            {"libskin", "tradeConfig", "skin/*"},
            {"designer", "tradeConfig", kitForHosts},
        },
        "CTradeConfigWidget",
        "tradeConfig/CTradeConfigWidget",
    };
    return sources;
}

constexpr int longestSource = 400;

QStringList words(const char* list) { return QString::fromLatin1(list).split(QLatin1Char(' ')); }

bool fits(const QString& unit, const char* patterns)
{
    for (const QString& pattern : words(patterns)) {
        const QString folder = pattern.chopped(1);
        if (pattern == unit
            || (pattern.endsWith(QLatin1Char('*')) && unit.startsWith(folder)
                && !unit.mid(folder.size()).contains(QLatin1Char('/'))))
            return true;
    }
    return false;
}

/// What the compiler sees of a source, without texts and without contexts of translation.
QString codeOf(const QString& source)
{
    static const QRegularExpression left(
        QStringLiteral(R"re(//[^\n]*|/\*.*?\*/|"(\\.|[^"\\\n])*"|Q_DECLARE_TR_FUNCTIONS\(\w+\))re"),
        QRegularExpression::DotMatchesEverythingOption);
    return QString(source).remove(left);
}

/// Reads the sources below a folder and tells what is wrong with them.
class Inspection {
public:
    Inspection(const House& inspected, const QString& root);

    QStringList faults() const { return m_faults; }

private:
    struct Source {
        QString path;
        QString unit;
        QString text;
    };

    void read(const QString& root);
    void inspect(const Source& source);
    void inspectInclude(const Source& source, const QString& included);
    void inspectNames(const Source& source);
    void inspectCircles();
    void inspectLevels();
    int levelOf(const QString& unit) const;
    bool isOpen(const QString& unit, const QString& target) const;
    void fault(const QString& text) { m_faults << text; }

    const House& m_house;
    std::vector<Source> m_sources;
    QMap<QString, QString> m_units; // by what includes say
    QMap<QString, QSet<QString>> m_neighbours; // units of one level that a unit includes
    QStringList m_faults;
};

Inspection::Inspection(const House& inspected, const QString& root)
    : m_house(inspected)
{
    read(root);
    for (const Source& source : m_sources)
        inspect(source);
    inspectCircles();
    inspectLevels();
}

void Inspection::read(const QString& root)
{
    QStringList paths;
    QSet<QString> folders;
    for (const Level& level : m_house.levels) {
        for (const QString& unit : words(level.units))
            folders << unit.section(QLatin1Char('/'), 0, 0);
    }
    for (const QString& folder : qAsConst(folders)) {
        QDirIterator files(root + QLatin1Char('/') + folder,
                           {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.mm"),
                            QStringLiteral("*.ui")},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            paths << files.next().mid(root.size() + 1);
    }
    paths.sort();
    for (const QString& path : qAsConst(paths)) {
        const QFileInfo file(path);
        const bool isForm = file.suffix() == QLatin1String("ui");
        const QString name = (isForm ? QStringLiteral("ui_") : QString()) + file.completeBaseName();
        const QString unit = file.path() + QLatin1Char('/') + name;
        m_units.insert(isForm ? name + QStringLiteral(".h") : path, unit);
        m_sources.push_back(
            {path, unit, QString::fromUtf8(contentOf(root + QLatin1Char('/') + path))});
    }
}

void Inspection::inspect(const Source& source)
{
    if (levelOf(source.unit) < 0) {
        fault(source.path + QStringLiteral(" stands on no level"));
        return;
    }
    static const QRegularExpression include(
        QStringLiteral(R"re(^\s*#\s*include\s+"([^"]+)"|<header>([^<]+)</header>)re"),
        QRegularExpression::MultilineOption);
    for (auto found = include.globalMatch(source.text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        inspectInclude(source, match.captured(match.lastCapturedIndex()));
    }
    inspectNames(source);
    const int lines = source.text.count(QLatin1Char('\n'));
    if (lines > longestSource && !source.path.endsWith(QLatin1String(".ui")))
        fault(QStringLiteral("%1 has %2 lines").arg(source.path).arg(lines));
}

void Inspection::inspectInclude(const Source& source, const QString& included)
{
    if (included.endsWith(QLatin1String(".moc")))
        return;
    const QString target = m_units.value(included);
    const auto wrong = [&](const char* why) {
        fault(QStringLiteral("%1 includes %2, %3")
                  .arg(source.path, included, QString::fromLatin1(why)));
    };
    if (target.isEmpty()) {
        wrong("which is no file of the tree");
        return;
    }
    if (target == source.unit)
        return;
    // A widget installs its description for assistive technology.
    if (target == source.unit + QStringLiteral("Accessible")
        && source.path.endsWith(QLatin1String(".cpp")))
        return;
    const int from = levelOf(source.unit);
    const int to = levelOf(target);
    if (!isOpen(source.unit, target))
        wrong("to which no way leads");
    else if (to == from && m_house.levels[std::size_t(from)].together)
        m_neighbours[source.unit] << target;
    else if (to >= 0 && to <= from)
        wrong(to == from ? "which stands beside it" : "which stands above it");
}

void Inspection::inspectNames(const Source& source)
{
    const QString code = codeOf(source.text);
    const QString master = QString::fromLatin1(m_house.master);
    const int masterLevel = levelOf(QString::fromLatin1(m_house.masterUnit));
    if (levelOf(source.unit) > masterLevel && !source.path.endsWith(QLatin1String(".ui"))
        && code.contains(QRegularExpression(QStringLiteral("\\b%1\\b").arg(master))))
        fault(QStringLiteral("%1 names %2").arg(source.path, master));

    // All that a widget has to do with its description.
    const QString name = source.unit.section(QLatin1Char('/'), -1);
    static const QString use = QStringLiteral(R"re(\b%1Accessible::(?!install\b)\w+)re");
    for (auto found = QRegularExpression(use.arg(name)).globalMatch(code); found.hasNext();)
        fault(QStringLiteral("%1 uses %2").arg(source.path, found.next().captured()));
}

void Inspection::inspectCircles()
{
    for (const QString& start : m_neighbours.keys()) {
        QSet<QString> reached;
        QStringList open(start);
        while (!open.isEmpty()) {
            for (const QString& next : m_neighbours.value(open.takeLast())) {
                if (!reached.contains(next))
                    open << next;
                reached << next;
            }
        }
        if (reached.contains(start))
            fault(start + QStringLiteral(" is in a circle"));
    }
}

void Inspection::inspectLevels()
{
    for (const Level& level : m_house.levels) {
        for (const QString& unit : words(level.units)) {
            const auto isThere
                = [&unit](const Source& source) { return fits(source.unit, qPrintable(unit)); };
            if (std::none_of(m_sources.begin(), m_sources.end(), isThere))
                fault(unit + QStringLiteral(" stands in the list alone"));
        }
    }
}

int Inspection::levelOf(const QString& unit) const
{
    for (std::size_t level = 0; level < m_house.levels.size(); ++level) {
        if (fits(unit, m_house.levels[level].units))
            return int(level);
    }
    return -1;
}

bool Inspection::isOpen(const QString& unit, const QString& target) const
{
    const QString from = unit.section(QLatin1Char('/'), 0, 0);
    const QString into = target.section(QLatin1Char('/'), 0, 0);
    if (from == into)
        return true;
    for (const Door& door : m_house.doors) {
        if (from == QLatin1String(door.from) && into == QLatin1String(door.into)
            && fits(target.section(QLatin1Char('/'), 1), door.units))
            return true;
    }
    return false;
}

/// A house of two folders in which nothing is wrong, for a test to spoil.
const House& smallHouse()
{
    static const House sources{
        {
            {"app/Main"},
            {"app/*", true},
            {"kit/Top"},
            {"kit/ui_Form"},
            {"kit/PanelAccessible"},
            {"kit/Panel kit/Knob"},
            {"kit/low/*", true},
        },
        {{"app", "kit", "Top low/*"}},
        "Top",
        "kit/Top",
    };
    return sources;
}

void writeSmallHouse(const QString& root)
{
    const std::pair<const char*, const char*> files[] = {
        {"app/Main.cpp", "#include \"app/View.h\"\n#include \"kit/Top.h\"\n#include <QWidget>\n"},
        {"app/Model.h", "#include \"kit/low/Paint.h\"\nclass Top;\n"},
        {"app/View.h", "#include \"app/Model.h\"\n"},
        {"kit/Top.h", "#include \"ui_Form.h\"\nclass Top {};\n"},
        {"kit/Top.cpp", "#include \"kit/Top.h\"\n#include \"kit/Knob.h\"\n#include \"Top.moc\"\n"},
        {"kit/Form.ui", "<class>Top</class>\n  <header>kit/Panel.h</header>\n"},
        {"kit/Panel.h", "class PanelAccessible;\n"},
        {"kit/Panel.cpp",
         "#include \"kit/Panel.h\"\n#include \"kit/PanelAccessible.h\"\n"
         "void f() { PanelAccessible::install(); }\n"},
        {"kit/PanelAccessible.h", "class PanelAccessible;\n"},
        {"kit/PanelAccessible.cpp",
         "#include \"kit/Panel.h\"\nvoid PanelAccessible::install() {}\n"},
        {"kit/Knob.h", "#include \"kit/low/Paint.h\"\n"},
        {"kit/low/Paint.h", "#include \"kit/low/Colour.h\"\n"},
        {"kit/low/Colour.h", ""},
    };
    for (const auto& [path, content] : files)
        writeFile(root + QLatin1Char('/') + QLatin1String(path), content);
}

} // namespace

/// Arrows run one way only, downwards.
class tst_Arrows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTree();
    void faultsAreFound_data();
    void faultsAreFound();
    void listsKeepUp();
};

void tst_Arrows::theTree()
{
    const Inspection inspection(house(), QStringLiteral(SOURCE_DIRECTORY));
    for (const QString& fault : inspection.faults())
        QTest::qFail(qPrintable(fault), __FILE__, __LINE__);
}

void tst_Arrows::faultsAreFound_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("faults");
    const auto row = [](const char* name, const char* path, const QByteArray& content,
                        const char* faults) {
        QTest::newRow(name) << QString::fromLatin1(path) << content << QString::fromLatin1(faults);
    };
    row("none", "kit/Knob.cpp", "#include \"kit/Knob.h\"\n#include \"kit/low/Colour.h\"\n", "");
    row("upwards", "kit/Knob.cpp", "#include \"kit/Top.h\"\n",
        "kit/Knob.cpp includes kit/Top.h, which stands above it");
    row("upwards, not first in line", "kit/Knob.cpp", "\n  #  include   \"kit/Top.h\" // why not\n",
        "kit/Knob.cpp includes kit/Top.h, which stands above it");
    row("sideways", "kit/Knob.mm", "#include \"kit/Panel.h\"\n",
        "kit/Knob.mm includes kit/Panel.h, which stands beside it");
    row("to the form", "kit/Knob.cpp", "#include \"ui_Form.h\"\n",
        "kit/Knob.cpp includes ui_Form.h, which stands above it");
    row("from the form", "kit/Form.ui", "<header>kit/Top.h</header>\n",
        "kit/Form.ui includes kit/Top.h, which stands above it");
    row("past the door", "app/View.cpp", "#include \"kit/Knob.h\"\n",
        "app/View.cpp includes kit/Knob.h, to which no way leads");
    row("where no door is", "kit/low/Paint.cpp", "#include \"app/Model.h\"\n",
        "kit/low/Paint.cpp includes app/Model.h, to which no way leads");
    row("in a circle", "app/Model.cpp", "#include \"app/View.h\"\n",
        "app/Model is in a circle|app/View is in a circle");
    row("not from the top", "kit/Knob.cpp", "#include \"low/Paint.h\"\n",
        "kit/Knob.cpp includes low/Paint.h, which is no file of the tree");
    row("a newcomer", "kit/New.cpp", "", "kit/New.cpp stands on no level");

    row("more of the description than its installation", "kit/Panel.cpp",
        "#include \"kit/PanelAccessible.h\"\n"
        "void f() { PanelAccessible::install(); PanelAccessible::selected(); }\n",
        "kit/Panel.cpp uses PanelAccessible::selected");
    row("the description in a header", "kit/Panel.h", "#include \"kit/PanelAccessible.h\"\n",
        "kit/Panel.h includes kit/PanelAccessible.h, which stands above it");
    row("another's description", "kit/Knob.cpp", "#include \"kit/PanelAccessible.h\"\n",
        "kit/Knob.cpp includes kit/PanelAccessible.h, which stands above it");

    row("the master named", "kit/Knob.cpp", "void f(const Top* top);\n", "kit/Knob.cpp names Top");
    row("the master in words", "kit/Knob.cpp",
        "// Top\n/* Top,\n Top */\nclass Ui_Top;\nclass TopMost;\n"
        "const char* a = \"Top\"; const char* b = \"say \\\"Top\\\"\";\n"
        "struct Text { Q_DECLARE_TR_FUNCTIONS(Top) };\n",
        "");

    row("400 lines", "kit/Knob.cpp", QByteArray(400, '\n'), "");
    row("401 lines", "kit/Knob.cpp", QByteArray(401, '\n'), "kit/Knob.cpp has 401 lines");
    row("a long form", "kit/Form.ui", QByteArray(1000, '\n'), "");
}

void tst_Arrows::faultsAreFound()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, content);
    QFETCH(QString, faults);
    const QTemporaryDir root;
    writeSmallHouse(root.path());
    QCOMPARE(Inspection(smallHouse(), root.path()).faults(), QStringList());
    writeFile(root.filePath(path), content);
    QCOMPARE(Inspection(smallHouse(), root.path()).faults().join(QLatin1Char('|')), faults);
}

void tst_Arrows::listsKeepUp()
{
    const QTemporaryDir root;
    writeSmallHouse(root.path());
    QVERIFY(QFile::remove(root.filePath(QStringLiteral("kit/Knob.h"))));
    writeFile(root.filePath(QStringLiteral("kit/Top.cpp")), "");
    QCOMPARE(Inspection(smallHouse(), root.path()).faults(),
             QStringList(QStringLiteral("kit/Knob stands in the list alone")));
}

TRADECONFIG_TEST_MAIN(tst_Arrows)
#include "tst_Arrows.moc"
