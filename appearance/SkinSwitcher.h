#pragma once

#include "libskin/SkinTable.h"

#include <QObject>
#include <QStringList>

class QMenu;

/// Keeps the whole interface in one skin, the module's own widgets and the standard controls
/// alike, and lets the user choose it.
class SkinSwitcher : public QObject {
    Q_OBJECT

public:
    explicit SkinSwitcher(QObject* parent = nullptr);

    /// Keeps @p menu filled with the skins, by their names in the language of the interface: those
    /// that the library lists, and those that were loaded from a folder of their own. A choice
    /// there takes effect at once.
    void fill(QMenu* menu);

Q_SIGNALS:
    /// After the user has chosen a skin in a menu.
    void chosen(const QString& name);
    /// When one that was chosen cannot be used; the skin is then as it was before.
    void refused(const QString& title, const QVector<CorvelSkin::SkinProblem>& problems);

private:
    void list(QMenu* menu);
    void choose(const QString& name);
    static void applyPalette();

    QStringList m_folders; ///< of skins that the library does not list
};
