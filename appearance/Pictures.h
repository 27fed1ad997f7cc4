#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QStringList>

class QPixmap;

/// Pictures of an interface, written as PNG files into one directory.
struct Pictures {
    Q_DECLARE_TR_FUNCTIONS(Pictures)

public:
    /// The directory is created if it is missing.
    explicit Pictures(const QString& directory);

    /// Writes "<name>.png". False, here and from then on, when that fails.
    bool add(const QString& name, const QPixmap& picture);

    const QDir folder;
    QStringList files; ///< absolute, in the order of writing
    QString failure; ///< empty as long as all went well
};
