#pragma once

#include <QObject>

class QMenu;

/// Keeps the whole interface in one skin, the module's own widgets and the standard controls
/// alike, and lets the user choose it.
class SkinSwitcher : public QObject {
    Q_OBJECT

public:
    explicit SkinSwitcher(QObject* parent = nullptr);

    /// Fills @p menu with the skins; a choice there takes effect at once.
    void fill(QMenu* menu);

Q_SIGNALS:
    /// After the user has chosen a skin in a menu.
    void chosen(const QString& name);

private:
    void choose(const QString& name);
    static void applyPalette();
};
