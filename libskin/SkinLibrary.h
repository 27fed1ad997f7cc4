#pragma once

#include "libskin/SkinExport.h"
#include "libskin/SkinTable.h"

#include <QColor>
#include <QObject>
#include <QPalette>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

namespace CorvelSkin {

class ActiveSkin;

/**
 * What a host does with the skin service: chooses the skin and asks for its colours.
 *
 * Until a skin is loaded the built-in light one serves. Everything belongs to the GUI thread.
 */
class SKIN_EXPORT SkinLibrary : public QObject {
    Q_OBJECT
public:
    /// The one library of the process; never null, never owned by the caller.
    static SkinLibrary* instance();

    /// Looks for skins in the folders of @p folder too, after those that came with the library. The
    /// folder need not be there yet.
    void addFolder(const QString& folder);

    /// The skins that can be loaded by name, sorted; "light" is always among them.
    QStringList names() const;

    /// What to call a skin of names(), or the one in a folder, in @p language ("zh_CN"): as its
    /// table says, or else the name of its folder.
    QString title(const QString& nameOrFolder, const QString& language) const;

    /// All that is wrong with the skin in @p folder, keys that nobody asks for included.
    QVector<SkinProblem> check(const QString& folder) const;

    /**
     * Makes the skin @p nameOrFolder the active one: a name of names(), or a folder.
     *
     * A skin with faults is used as far as it goes, the built-in light skin serves for the rest,
     * and problems() tells what and why. Returns false if there is no such skin or its table
     * cannot be read; the built-in light skin is active then. In either case every widget of the
     * process repaints and skinChanged() is emitted.
     */
    bool load(const QString& nameOrFolder);

    /// The name of the active skin: its folder's name, "light" for the built-in one.
    QString currentName() const;

    /// What the active skin was loaded by, a name or a folder; "light" for the built-in one.
    QString current() const;

    /// What was wrong at the last load(); empty for a faultless skin.
    QVector<SkinProblem> problems() const;

    /// The colour of a key; invalid for an unknown one, which is not reported.
    QColor colour(const QString& key) const;

    /// The palette that brings the standard controls into step with the active skin.
    QPalette palette() const;

Q_SIGNALS:
    /// After each load(), when all lookups answer from the new skin.
    void skinChanged();

private:
    explicit SkinLibrary(ActiveSkin& active);
    QStringList searchPaths() const;
    QString folderOf(const QString& name) const;

    ActiveSkin& m_active;
    QStringList m_addedFolders;
    QString m_current;
    QString m_currentName;
    QVector<SkinProblem> m_problems;
};

} // namespace CorvelSkin
