#pragma once

#include <QString>

class DataDirectory;
class QCoreApplication;

/// The interface settings as they stand when the client starts. The dialog writes them.
struct StartSettings {
    int scalePercent = 100; ///< 100 to 300
    QString language = QStringLiteral("zh_CN"); ///< "zh_CN", "zh_TW" or "en_US"

    /// A missing, unreadable or senseless file or value gives the defaults: 100, "zh_CN".
    static StartSettings read(const DataDirectory& directory);

    /// Stores the language for the next start, "zh_CN", "zh_TW" or "en_US", where the dialog stores
    /// it. Returns an empty text, or why that failed.
    static QString keepLanguage(const DataDirectory& directory, const QString& language);

    /// Installs the translations of the module's and the client's texts and of the toolkit's
    /// own, which the program brings along. They belong to @p application.
    void installTranslations(QCoreApplication* application) const;
};
