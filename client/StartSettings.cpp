#include "client/StartSettings.h"

#include "client/DataDirectory.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

#include <algorithm>
#include <new>

namespace {

void install(QCoreApplication* application, const QString& name, const QString& directory)
{
    auto* const translator = new QTranslator(application);
    if (!translator->load(name, directory) || !QCoreApplication::installTranslator(translator))
        delete translator;
}

/// Empty also for a value in the toolkit's binary notation that asks for more memory than there is.
QString storedText(const QSettings& file, const QString& key)
{
    try {
        return file.value(key).toString();
    } catch (const std::bad_alloc&) {
        return {};
    }
}

} // namespace

StartSettings StartSettings::read(const DataDirectory& directory)
{
    const QSettings file(directory.settingsFile(), QSettings::IniFormat);
    StartSettings settings;
    settings.scalePercent
        = std::clamp(storedText(file, QStringLiteral("UI/scale")).toInt(), 100, 300);
    const QString language = storedText(file, QStringLiteral("UI/language"));
    const bool known = language == QLatin1String("zh_TW") || language == QLatin1String("en_US");
    settings.language = known ? language : QStringLiteral("zh_CN");
    return settings;
}

void StartSettings::installTranslations(QCoreApplication* application) const
{
    QLocale::setDefault(QLocale(language));
    const QString ours = QStringLiteral(":/translations");
    const QString toolkit = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    install(application, QStringLiteral("qtbase_") + language, toolkit);
    install(application, QStringLiteral("qtbase_") + language, ours);
    install(application, QStringLiteral("tradeConfig_") + language, ours);
}
