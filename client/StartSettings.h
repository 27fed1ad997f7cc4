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

    /// Installs the translations of the module's and the client's texts and of the toolkit's
    /// own, as far as they exist. They belong to @p application.
    void installTranslations(QCoreApplication* application) const;
};

/**
 * Makes the next QApplication draw everything @p percent / 100 times as large, on top of what
 * the environment asks for. The environment is as before when this object is gone, so that
 * programs started by this one, this one's successor among them, do not inherit the factor.
 */
class InterfaceScale {
public:
    explicit InterfaceScale(int percent);
    ~InterfaceScale();
    InterfaceScale(const InterfaceScale&) = delete;
    InterfaceScale& operator=(const InterfaceScale&) = delete;

private:
    QByteArray m_before;
    bool m_wasSet;
};
