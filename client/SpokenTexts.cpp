#include "client/SpokenTexts.h"

#include <QTranslator>

SpokenTexts::SpokenTexts()
{
    // The texts as they are written in the sources.
    m_languages += [](const char* source) { return QString::fromUtf8(source); };
    for (const char* const language : {"zh_TW", "en_US"}) {
        auto translator = std::make_unique<QTranslator>();
        if (!translator->load(QStringLiteral("tradeConfig_") + QLatin1String(language),
                              QStringLiteral(":/translations")))
            continue;
        m_languages += [translator = translator.get()](const char* source) {
            return translator->translate("RecordFields", source);
        };
        m_translators.push_back(std::move(translator));
    }
}

SpokenTexts::~SpokenTexts() = default;
