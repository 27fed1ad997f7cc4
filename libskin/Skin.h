#pragma once

#include "libskin/SkinImage.h"
#include "libskin/SkinTable.h"

#include <QHash>

#include <memory>

namespace CorvelSkin {

/// A skin with everything it draws with in memory.
struct Skin {
    QHash<QString, QColor> colours;
    QHash<QString, FontEntry> fonts;
    QHash<QString, std::shared_ptr<const SkinImage>> images;
    QHash<QString, QColor> palette;
    QHash<QString, QColor> disabledPalette;
};

/// Where the light skin is compiled in.
QString builtInFolder();

/// The light skin that is compiled in; always complete.
Skin builtInSkin();

/// Reads the skin in @p folder and takes what is absent or wrong from @p substitute; each of these
/// is a row of @p problems. False if not even the table could be read.
bool readSkin(const QString& folder, const Skin& substitute, Skin& skin,
              QVector<SkinProblem>& problems);

/// The table of the skin in @p folder; empty, and a row of @p problems without a key, if it cannot
/// be read.
SkinTable readTable(const QString& folder, QVector<SkinProblem>& problems);

/// The folders that may hold skin folders, the ones beside this library first.
QStringList skinSearchPaths();

} // namespace CorvelSkin
