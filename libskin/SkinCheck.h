#pragma once

#include "libskin/Skin.h"

namespace CorvelSkin {

/// Adds to @p problems what stands in the table of @p folder and nobody reads: sections, fields of
/// entries, and keys that neither the module nor @p substitute has. A skin works with them, but
/// most are slips of the pen.
void reportUnknown(const QString& folder, const Skin& substitute, QVector<SkinProblem>& problems);

} // namespace CorvelSkin
