// Opens and closes what else a team could use for the same settings: KConfigDialog with as many
// settings of the same kinds, and KShortcutsEditor with the 26 hotkeys. Prints CPU times.

#include "bench/BenchRecord.h"
#include "bench/FloorDialog.h"
#include "bench/Stage.h"
#include "tradeConfig/CTradeConfigWidget.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <QStandardPaths>

#include <KActionCollection>
#include <KConfigDialog>
#include <KCoreConfigSkeleton>
#include <KShortcutsEditor>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

namespace {

constexpr int choices = 19; // combo boxes with five items
constexpr int quantities = 9; // line edits
constexpr int flags = 6; // check boxes
constexpr int numbers = 1; // spin boxes
constexpr int hotkeys = 26;
constexpr int pages = 3;

class Settings : public KCoreConfigSkeleton {
public:
    Settings()
        : KCoreConfigSkeleton(QStringLiteral("benchmarkrc"))
    {
        setCurrentGroup(QStringLiteral("Trade"));
        for (int& value : m_choices)
            addItemInt(nextName(), value, 1);
        for (QString& value : m_quantities)
            addItemString(nextName(), value, QStringLiteral("1000"));
        for (bool& value : m_flags)
            addItemBool(nextName(), value, true);
        addItemInt(nextName(), m_number, 125);
    }

    static QString name(int index) { return QStringLiteral("Setting%1").arg(index); }

private:
    QString nextName() { return name(m_count++); }

    int m_count = 0;
    int m_choices[choices];
    QString m_quantities[quantities];
    bool m_flags[flags];
    int m_number = 0;
};

QWidget* makeControl(int index)
{
    if (index < choices) {
        auto* const combo = new QComboBox;
        combo->addItems({QStringLiteral("卖一"), QStringLiteral("卖二"), QStringLiteral("卖三"),
                         QStringLiteral("卖四"), QStringLiteral("卖五")});
        return combo;
    }
    if (index < choices + quantities)
        return new QLineEdit;
    if (index < choices + quantities + flags)
        return new QCheckBox;
    auto* const number = new QSpinBox;
    number->setRange(100, 300);
    return number;
}

void addSettings(KConfigDialog& dialog)
{
    QFormLayout* forms[pages];
    for (QFormLayout*& form : forms) {
        auto* const page = new QWidget(&dialog);
        form = new QFormLayout(page);
    }
    constexpr int count = choices + quantities + flags + numbers;
    for (int index = 0; index < count; ++index) {
        QWidget* const control = makeControl(index);
        control->setObjectName(QStringLiteral("kcfg_") + Settings::name(index));
        forms[index % pages]->addRow(QStringLiteral("默认买入价格："), control);
    }
    for (QFormLayout* const form : forms)
        dialog.addPage(form->parentWidget(), QStringLiteral("系统设置"));
}

class Hotkeys {
public:
    Hotkeys()
        : m_actions(static_cast<QObject*>(nullptr))
    {
        for (int index = 0; index < hotkeys; ++index) {
            QAction* const action = m_actions.addAction(QStringLiteral("action%1").arg(index));
            action->setText(QStringLiteral("买入股票"));
            m_actions.setDefaultShortcut(action, QKeySequence(int(Qt::ALT) + Qt::Key_A + index));
        }
    }

    KShortcutsEditor* makeEditor(QWidget* parent)
    {
        return new KShortcutsEditor(&m_actions, parent);
    }

private:
    KActionCollection m_actions;
};

double cpuMilliseconds()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

struct Candidate {
    const char* name;
    std::function<void()> openAndClose;
    double least = std::numeric_limits<double>::max();
};

template <typename Window> void openAndClose(Window& window)
{
    window.resize(659, 641);
    Stage::open(window);
    window.close();
}

} // namespace

int main(int argc, char** argv)
{
    const Stage::Environment environment;
    const QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);

    BenchTrade trade;
    Settings settings;
    Hotkeys keys;
    const QString name = QStringLiteral("settings");
    std::vector<Candidate> candidates;
    candidates.push_back({"this module's dialog", [&] {
                              CTradeConfigWidget dialog(&trade);
                              openAndClose(dialog);
                          }});
    candidates.push_back({"its floor", [&] {
                              FloorDialog dialog(&trade);
                              openAndClose(dialog);
                          }});
    candidates.push_back({"KConfigDialog, 35 settings", [&] {
                              KConfigDialog dialog(nullptr, name, &settings);
                              addSettings(dialog);
                              openAndClose(dialog);
                          }});
    candidates.push_back({"KShortcutsEditor, 26 actions", [&] {
                              const std::unique_ptr<QWidget> editor(keys.makeEditor(nullptr));
                              openAndClose(*editor);
                          }});
    candidates.push_back({"KConfigDialog with KShortcutsEditor", [&] {
                              KConfigDialog dialog(nullptr, name, &settings);
                              addSettings(dialog);
                              dialog.addPage(keys.makeEditor(&dialog), QStringLiteral("快捷键"));
                              openAndClose(dialog);
                          }});

    constexpr int rounds = 40;
    for (int round = 0; round < rounds; ++round) {
        for (Candidate& candidate : candidates) {
            const double before = cpuMilliseconds();
            candidate.openAndClose();
            // The first round warms the caches of each.
            if (round > 0)
                candidate.least = std::min(candidate.least, cpuMilliseconds() - before);
            Stage::settle();
        }
    }
    std::printf("\nopen and close: least CPU time of %d, and beside the module\n", rounds - 1);
    for (const Candidate& candidate : candidates) {
        std::printf("%-40s%10.2f ms%8.2f\n", candidate.name, candidate.least,
                    candidate.least / candidates.front().least);
    }
    return 0;
}
