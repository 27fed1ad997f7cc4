#include "client/SkinSwitcher.h"

#include "client/DataDirectory.h"
#include "libskin/SkinLibrary.h"
#include "tradeConfig/dialog/SheetFont.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QSettings>
#include <QWidget>

using CorvelSkin::SkinLibrary;

namespace {

QString skinKey() { return QStringLiteral("View/skin"); }

} // namespace

SkinSwitcher::SkinSwitcher(const DataDirectory& directory, QObject* parent)
    : QObject(parent)
    , m_directory(directory)
{
    connect(SkinLibrary::instance(), &SkinLibrary::skinChanged, this, &SkinSwitcher::applyPalette);
    applyPalette();
}

bool SkinSwitcher::start(const QString& nameOrFolder)
{
    SkinLibrary* const library = SkinLibrary::instance();
    if (!nameOrFolder.isEmpty())
        return library->load(nameOrFolder);
    const QString chosen
        = QSettings(m_directory.clientFile(), QSettings::IniFormat).value(skinKey()).toString();
    // One that is gone is no reason not to start.
    if (library->names().contains(chosen))
        library->load(chosen);
    return true;
}

void SkinSwitcher::fill(QMenu* menu)
{
    auto* const group = new QActionGroup(menu);
    const QStringList names = SkinLibrary::instance()->names();
    for (const QString& name : names) {
        QAction* const action = menu->addAction(name);
        action->setCheckable(true);
        action->setChecked(name == SkinLibrary::instance()->currentName());
        action->setObjectName(QStringLiteral("action_skin_") + name);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, name] { choose(name); });
    }
}

void SkinSwitcher::choose(const QString& name)
{
    SkinLibrary::instance()->load(name);
    QSettings(m_directory.clientFile(), QSettings::IniFormat).setValue(skinKey(), name);
}

void SkinSwitcher::applyPalette()
{
    QApplication::setPalette(SkinLibrary::instance()->palette());
    // A widget whose sheet sets one colour keeps the rest of the palette of that moment.
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* const widget : widgets) {
        const QString sheet = widget->styleSheet();
        if (sheet.isEmpty())
            continue;
        SheetFont::keep(*widget, [&] {
            widget->setStyleSheet(QString());
            widget->setStyleSheet(sheet);
        });
    }
}
