#pragma once

#include <QString>

/**
 * The interface scale and language, kept in "system_settings.ini" in the data directory.
 *
 * The file lies in the subdirectory "config" if that exists, otherwise in the data directory
 * itself; the directory is never created here. It is opened anew for every call. Reading a
 * missing or unreadable file gives the defaults; a failed write is not reported.
 */
namespace InterfaceSettings {

/// ApplicationHomePath() as text, of which it gives 512 bytes at most.
QString dataDirectory();

/// Where the file is, existing or not.
QString filePath();

/// Index of the stored language in the order simplified Chinese, traditional Chinese, English.
/// Absent or unknown: 0.
int languageIndex();

/// Interface scale in percent as stored, not clamped; 0 when absent.
int scale();

/// Writes both values and forces the file to disk; where that cannot work, for want of room or of
/// permission, the file stays as it is.
void save(int languageIndex, int scale);

} // namespace InterfaceSettings
