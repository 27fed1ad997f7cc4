#include "appearance/SkinSwitcher.h"

#include "libskin/SkinLibrary.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QLocale>
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
    // Folders come and go.
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { list(menu); });
    list(menu);
}

void SkinSwitcher::list(QMenu* menu)
{
    const SkinLibrary& library = *SkinLibrary::instance();
    QStringList names = library.names();
    if (!names.contains(library.current()) && !m_folders.contains(library.current()))
        m_folders += library.current();
    names += m_folders;
    menu->clear();
    delete menu->findChild<QActionGroup*>(QString(), Qt::FindDirectChildrenOnly);
    auto* const group = new QActionGroup(menu);
    for (const QString& name : qAsConst(names)) {
        QAction* const action = menu->addAction(library.title(name, QLocale().name()));
        action->setCheckable(true);
        action->setChecked(name == library.current());
        action->setObjectName(QStringLiteral("action_skin_") + name);
        if (m_folders.contains(name))
            action->setToolTip(name);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, name] { choose(name); });
    }
}

void SkinSwitcher::choose(const QString& name)
{
    SkinLibrary* const library = SkinLibrary::instance();
    const QString before = library->current();
    if (library->load(name)) {
        Q_EMIT chosen(name);
        return;
    }
    const QVector<CorvelSkin::SkinProblem> problems = library->problems();
    library->load(before);
    Q_EMIT refused(library->title(name, QLocale().name()), problems);
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
