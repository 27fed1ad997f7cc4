#pragma once

#include <QObject>

class DataDirectory;
class QMenu;

/// Keeps the whole interface in one skin, the module's own widgets and the standard controls
/// alike, and lets the user choose it.
class SkinSwitcher : public QObject {
    Q_OBJECT

public:
    explicit SkinSwitcher(const DataDirectory& directory, QObject* parent = nullptr);

    /// Makes a skin the active one for this run, by name or folder; empty: the one that was
    /// last chosen. False if there is no such skin; the built-in light one serves then.
    bool start(const QString& nameOrFolder);

    /// Fills @p menu with the skins. What is chosen there is remembered.
    void fill(QMenu* menu);

private:
    void choose(const QString& name);
    static void applyPalette();

    const DataDirectory& m_directory;
};
