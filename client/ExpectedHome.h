#pragma once

#include <QString>

/**
 * The data directory before the module is asked for it.
 *
 * The module's ApplicationHomePath() makes the directory, and where that is impossible looks on
 * elsewhere, without an end. Who only reads, or wants an answer, looks first.
 */
namespace ExpectedHome {

/// Where the module will look first. Nothing is made.
QString path();

/// Why nothing can be read in the directory, or empty: it is there, or may yet be made. Nothing is
/// made.
QString problem();

/// Makes the directory with its parents: the module finds it there then. Returns an empty text, or
/// why it cannot be made.
QString make();

} // namespace ExpectedHome
