#include "client/StartSettings.h"

#include "client/DataDirectory.h"
#include "client/PlainSettings.h"
#include "client/ToolkitTexts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

namespace {

QString languageKey() { return QStringLiteral("UI/language"); }

void install(QTranslator* translator, const QString& name)
{
    if (!translator->load(name, QStringLiteral(":/translations"))
        || !QCoreApplication::installTranslator(translator))
        delete translator;
}

} // namespace

StartSettings StartSettings::read(const DataDirectory& directory)
{
    const QString file = directory.settingsFile();
    StartSettings settings;
    settings.scalePercent
        = std::clamp(PlainSettings::value(file, QStringLiteral("UI/scale")).toInt(), 100, 300);
    const QString language = PlainSettings::value(file, languageKey()).toString();
    const bool known = language == QLatin1String("zh_TW") || language == QLatin1String("en_US");
    settings.language = known ? language : QStringLiteral("zh_CN");
    return settings;
}

QString StartSettings::keepLanguage(const DataDirectory& directory, const QString& language)
{
    return PlainSettings::setValue(directory.settingsFile(), languageKey(), language);
}

void StartSettings::installTranslations(QCoreApplication* application) const
{
    QLocale::setDefault(QLocale(language));
    install(new ToolkitTexts(application), QStringLiteral("qtbase_") + language);
    install(new QTranslator(application), QStringLiteral("tradeConfig_") + language);
}
