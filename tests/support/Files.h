#pragma once

#include <QByteArray>
#include <QString>

/// Writes a whole file and makes the folders that it lies in; ends the program if that does not
/// work. The toolkit notices every such write as a change of the file, however soon it follows the
/// last one.
void writeFile(const QString& path, const QByteArray& content);

/// What a file holds; empty if it cannot be read.
QByteArray contentOf(const QString& path);
