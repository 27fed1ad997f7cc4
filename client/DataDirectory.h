#pragma once

#include <QString>

/**
 * Where everything of one user lies. All paths are absolute; nothing is created but by the
 * functions that say so.
 */
class DataDirectory {
public:
    /// @p home as the module's ApplicationHomePath() gives it; may be relative.
    explicit DataDirectory(const QString& home);

    /// The path in a buffer as ApplicationHomePath() fills it: 512 bytes, terminated only if the
    /// path is shorter.
    static QString homeIn(const char* buffer);

    QString home() const { return m_home; }
    QString configDirectory() const;
    /// The trade record.
    QString recordFile() const;
    /// The interface settings: in the configuration directory, or in the home directory itself
    /// as long as there is no configuration directory. The module goes by the same rule.
    QString settingsFile() const;
    /// The client's own choices for its window.
    QString clientFile() const;
    /// How the client's window was left.
    QString windowFile() const;
    /// The user's own skins, a folder each.
    QString skinsDirectory() const;
    QString runDirectory() const;
    /// Locked by the running client.
    QString lockFile() const;
    /// How the running client was started.
    QString startFile() const;
    QString restartProgram() const;

    /// Creates the configuration directory if it is missing, and takes interface settings that
    /// lie in the home directory along: they would not be found any more. False on failure.
    bool makeConfigDirectory() const;
    bool makeRunDirectory() const;

private:
    QString m_home;
};
