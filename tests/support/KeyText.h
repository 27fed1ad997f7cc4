#pragma once

#include <QString>

/**
 * What this system writes for a hotkey that Linux writes as @p onLinux: "Ctrl+Shift+Del" is just
 * that there, and "⇧⌘⌦" on macOS. For expectations: neither the code under test nor the toolkit is
 * asked.
 */
QString keyText(const QString& onLinux);
inline QString keyText(const char* onLinux) { return keyText(QString::fromLatin1(onLinux)); }

/// The same on macOS, whatever this system is.
QString keyTextOnMac(const QString& onLinux);
