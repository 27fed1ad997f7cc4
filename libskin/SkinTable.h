#pragma once

#include "libskin/SkinExport.h"

#include <QByteArray>
#include <QColor>
#include <QHash>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

namespace CorvelSkin {

/// One thing that is wrong with a skin.
struct SkinProblem {
    QString file; ///< the table, an image, or the folder itself
    QString key; ///< the key or section; empty when the whole file is meant
    QString reason;
};

struct FontEntry {
    QStringList families; ///< the first installed one that has the character is used
    int pixelSize = 0; ///< logical pixels, 1 to 200
    int weight = 0; ///< QFont's scale, 0 to 99
};

struct ImageEntry {
    QString file; ///< below the skin's folder
    QSize size; ///< of all frames together, in logical pixels; empty: the file's own
    int frames = 1; ///< equal frames side by side
};

/// A larger table is refused.
constexpr int maxTableBytes = 1 << 20;

/// What a skin's table says, before any image is read.
struct SkinTable {
    QHash<QString, QString> titles; ///< the skin's name to show, by language ("zh_CN")
    QHash<QString, QColor> colours;
    QHash<QString, FontEntry> fonts;
    QHash<QString, ImageEntry> images;
    QHash<QString, QColor> palette;
    QHash<QString, QColor> disabledPalette;
};

/**
 * Reads the text of a skin table.
 *
 * Whatever @p bytes holds, the entries that are right are returned and everything else is added
 * to @p problems under the name @p file. Reads no file, keeps nothing.
 */
SKIN_EXPORT SkinTable readSkinTable(const QByteArray& bytes, const QString& file,
                                    QVector<SkinProblem>& problems);

} // namespace CorvelSkin
