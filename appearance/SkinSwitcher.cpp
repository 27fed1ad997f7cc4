#include "appearance/SkinSwitcher.h"

#include "libskin/SkinLibrary.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QWidget>

using CorvelSkin::SkinLibrary;

SkinSwitcher::SkinSwitcher(QObject* parent)
    : QObject(parent)
{
    connect(SkinLibrary::instance(), &SkinLibrary::skinChanged, this, &SkinSwitcher::applyPalette);
    applyPalette();
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
    Q_EMIT chosen(name);
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
        QFont font = widget->font();
        widget->setStyleSheet(QString());
        widget->setStyleSheet(sheet);
        if (widget->font() == font)
            continue;
        // A new sheet drops the font that was inherited from the window. A list of families that
        // was only inherited gets the family put in front of it; one that is set does not.
        font.setFamilies(font.families());
        widget->setFont(font);
    }
}
