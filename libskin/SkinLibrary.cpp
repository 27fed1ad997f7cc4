#include "libskin/SkinLibrary.h"

#include "libskin/ActiveSkin.h"
#include "libskin/PaletteRoles.h"
#include "libskin/Skin.h"

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

/// The folder of the shipped skin @p name; empty if there is none.
QString shippedFolder(const QString& name)
{
    if (name.isEmpty() || name.contains(QLatin1Char('/')) || name.startsWith(QLatin1Char('.')))
        return QString();
    for (const QString& path : skinSearchPaths()) {
        const QString folder = path + QLatin1Char('/') + name;
        if (QFileInfo(folder + QStringLiteral("/skin.json")).isFile())
            return folder;
    }
    return QString();
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
    , m_currentName(builtInName())
{
}

SkinLibrary* SkinLibrary::instance()
{
    static SkinLibrary library(ActiveSkin::instance());
    return &library;
}

QStringList SkinLibrary::names() const
{
    QStringList names{builtInName()};
    for (const QString& path : skinSearchPaths()) {
        for (const QString& name : QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            if (!shippedFolder(name).isEmpty())
                names << name;
        }
    }
    names.removeDuplicates();
    names.sort();
    return names;
}

bool SkinLibrary::load(const QString& nameOrFolder)
{
    m_problems.clear();
    Skin skin = m_active.builtIn();
    bool loaded = true;
    QString folder = shippedFolder(nameOrFolder);
    if (folder.isEmpty() && nameOrFolder != builtInName()) {
        folder = nameOrFolder;
        if (folder.isEmpty()) {
            m_problems.append({folder, QString(), QStringLiteral("no skin was named")});
            loaded = false;
        }
    }
    if (!folder.isEmpty())
        loaded = readSkin(folder, m_active.builtIn(), skin, m_problems);

    m_currentName = loaded && !folder.isEmpty() ? QFileInfo(QDir(folder).absolutePath()).fileName()
                                                : builtInName();
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
