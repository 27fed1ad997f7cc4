#pragma once

#include <QCoreApplication>
#include <QLibrary>
#include <QString>

class QWidget;

namespace KivoTrade {
class ITrade;
}

/// The settings module, loaded at run time; stays loaded for the life of the process.
class SettingsModule {
    Q_DECLARE_TR_FUNCTIONS(SettingsModule)

public:
    /// Loads @p fileName, or the module that belongs to this program when it is empty.
    /// Returns an empty text, or which file failed and why.
    QString load(const QString& fileName = QString());

    QString fileName() const { return m_library.fileName(); }

    /// The user's data directory, as the module sees it.
    QString homePath() const;

    /// A new settings dialog without a parent, which the caller owns; @p trade must outlive it.
    /// Null when the module could not make one.
    QWidget* createDialog(KivoTrade::ITrade* trade) const;

private:
    using CreateFunction = void* (*)(KivoTrade::ITrade*);
    using HomeFunction = const char* (*)();

    QLibrary m_library;
    CreateFunction m_create = nullptr;
    HomeFunction m_home = nullptr;
};
