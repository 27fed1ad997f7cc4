#include "client/StartSettings.h"

#include "client/DataDirectory.h"
#include "client/PlainSettings.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

namespace {

void install(QCoreApplication* application, const QString& name, const QString& directory)
{
    auto* const translator = new QTranslator(application);
    if (!translator->load(name, directory) || !QCoreApplication::installTranslator(translator))
        delete translator;
}

} // namespace

StartSettings StartSettings::read(const DataDirectory& directory)
{
    const QString file = directory.settingsFile();
    StartSettings settings;
    settings.scalePercent
        = std::clamp(PlainSettings::value(file, QStringLiteral("UI/scale")).toInt(), 100, 300);
    const QString language = PlainSettings::value(file, QStringLiteral("UI/language")).toString();
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
