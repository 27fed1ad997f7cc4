#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// What writing pictures came to.
struct ScreenshotResult {
    QStringList files; ///< absolute, in the order of the pages
    QString failure; ///< empty when all were written
};

/// Writes every page and sub-page of the settings dialog, in its real size, as PNG files into
/// @p directory, which is created if it is missing. Shows @p dialog meanwhile.
ScreenshotResult writeScreenshots(QWidget& dialog, const QString& directory);
