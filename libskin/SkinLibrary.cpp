#include "libskin/SkinLibrary.h"

#include "libskin/ActiveSkin.h"
#include "libskin/PaletteRoles.h"
#include "libskin/Skin.h"
#include "libskin/SkinCheck.h"

#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QWidget>

namespace CorvelSkin {
namespace {

const QString& builtInName()
{
    static const QString name = QStringLiteral("light");
    return name;
}

QString nameOfFolder(const QString& folder)
{
    return QFileInfo(QDir(folder).absolutePath()).fileName();
}

void repaintEverything()
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return;
    // A window's own update() would leave out its opaque children.
    for (QWidget* widget : QApplication::allWidgets())
        widget->update();
}

} // namespace

SkinLibrary::SkinLibrary(ActiveSkin& active)
    : m_active(active)
    , m_current(builtInName())
    , m_currentName(builtInName())
{
}

SkinLibrary* SkinLibrary::instance()
{
    static SkinLibrary library(ActiveSkin::instance());
    return &library;
}

void SkinLibrary::addFolder(const QString& folder) { m_addedFolders << folder; }

QStringList SkinLibrary::searchPaths() const { return skinSearchPaths() + m_addedFolders; }

// Empty if there is no such skin.
QString SkinLibrary::folderOf(const QString& name) const
{
    if (name.isEmpty() || name.contains(QLatin1Char('/')) || name.startsWith(QLatin1Char('.')))
        return QString();
    for (const QString& path : searchPaths()) {
        const QString folder = path + QLatin1Char('/') + name;
        if (QFileInfo(folder + QStringLiteral("/skin.json")).isFile())
            return folder;
    }
    return QString();
}

QStringList SkinLibrary::names() const
{
    QStringList names{builtInName()};
    for (const QString& path : searchPaths()) {
        for (const QString& name : QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            if (!folderOf(name).isEmpty())
                names << name;
        }
    }
    names.removeDuplicates();
    names.sort();
    return names;
}

QString SkinLibrary::title(const QString& nameOrFolder, const QString& language) const
{
    const QString named = folderOf(nameOrFolder);
    const QString folder = !named.isEmpty() ? named
        : nameOrFolder == builtInName()     ? builtInFolder()
                                            : nameOrFolder;
    QVector<SkinProblem> problems;
    const QString title = readTable(folder, problems).titles.value(language);
    return title.isEmpty() ? nameOfFolder(folder) : title;
}

QVector<SkinProblem> SkinLibrary::check(const QString& folder) const
{
    QVector<SkinProblem> problems;
    Skin skin;
    if (readSkin(folder, m_active.builtIn(), skin, problems))
        reportUnknown(folder, m_active.builtIn(), problems);
    return problems;
}

bool SkinLibrary::load(const QString& nameOrFolder)
{
    m_problems.clear();
    Skin skin = m_active.builtIn();
    bool loaded = true;
    QString folder = folderOf(nameOrFolder);
    if (folder.isEmpty() && nameOrFolder != builtInName()) {
        folder = nameOrFolder;
        if (folder.isEmpty()) {
            m_problems.append({folder, QString(), QStringLiteral("no skin was named")});
            loaded = false;
        }
    }
    if (!folder.isEmpty())
        loaded = readSkin(folder, m_active.builtIn(), skin, m_problems);

    const bool isBuiltIn = !loaded || folder.isEmpty();
    m_current = isBuiltIn ? builtInName() : nameOrFolder;
    m_currentName = isBuiltIn ? builtInName() : nameOfFolder(folder);
    for (const SkinProblem& problem : qAsConst(m_problems)) {
        qWarning("skin: %s: %s: %s; the built-in light skin serves instead",
                 qUtf8Printable(problem.file),
                 problem.key.isEmpty() ? "(everything)" : qUtf8Printable(problem.key),
                 qUtf8Printable(problem.reason));
    }
    m_active.set(std::move(skin));
    repaintEverything();
    Q_EMIT skinChanged();
    return loaded;
}

QString SkinLibrary::currentName() const { return m_currentName; }

QString SkinLibrary::current() const { return m_current; }

QVector<SkinProblem> SkinLibrary::problems() const { return m_problems; }

QColor SkinLibrary::colour(const QString& key) const { return m_active.skin().colours.value(key); }

QPalette SkinLibrary::palette() const
{
    const Skin& skin = m_active.skin();
    QPalette palette;
    for (const PaletteRole& row : paletteRoles) {
        const QString name = QLatin1String(row.name);
        const QColor normal = skin.palette.value(name);
        if (normal.isValid())
            palette.setColor(row.role, normal);
        const QColor disabled = skin.disabledPalette.value(name);
        if (disabled.isValid())
            palette.setColor(QPalette::Disabled, row.role, disabled);
    }
    return palette;
}

} // namespace CorvelSkin
