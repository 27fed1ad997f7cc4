#pragma once

#include "appearance/Pictures.h"

class QWidget;

/// Writes every page and sub-page of the settings dialog, in its real size, as PNG files into
/// @p directory, which is created if it is missing. Shows @p dialog meanwhile.
Pictures writeScreenshots(QWidget& dialog, const QString& directory);
