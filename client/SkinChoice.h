#pragma once

#include <QString>

class DataDirectory;

/// The skin that the user chose in the window, kept for the next start.
namespace SkinChoice {

/// The name that was last kept, or an empty one.
QString read(const DataDirectory& directory);

void keep(const DataDirectory& directory, const QString& name);

} // namespace SkinChoice
