#pragma once

#include <QString>

namespace FuzzSetup {

/// Starts an offscreen application of a home directory of its own, once a process, and silences
/// the toolkit's messages. Returns that home directory.
const QString& application();

} // namespace FuzzSetup
