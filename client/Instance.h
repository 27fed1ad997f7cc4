#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class DataDirectory;

/**
 * The one running client of a data directory.
 *
 * It holds a lock that ends with the process, however it ends, and writes down how it was
 * started, for the restarter: current directory, program and arguments, each followed by a NUL.
 */
class Instance {
    Q_DECLARE_TR_FUNCTIONS(Instance)

public:
    explicit Instance(const DataDirectory& directory);
    ~Instance();
    Instance(const Instance&) = delete;
    Instance& operator=(const Instance&) = delete;

    /// Returns an empty text, or why this process cannot be the one. Once it is, it stays so.
    QString claim();

    /// Whether the last claim() failed because another process is the one.
    bool isTaken() const { return m_isTaken; }

    /// Only after claim(). @p arguments without the program's name.
    QString writeStart(const QString& currentDirectory, const QString& program,
                       const QStringList& arguments) const;

    /// Puts the restarter at its place in the data directory unless the same file is there.
    /// @p source is the restarter that came with this program.
    QString installRestarter(const QString& source) const;

private:
    const DataDirectory& m_directory;
    int m_lock = -1;
    bool m_isTaken = false;
};
