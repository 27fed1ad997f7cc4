#pragma once

#include "client/RecordFields.h"

#include <QVector>

#include <memory>
#include <vector>

class QTranslator;

/**
 * The record's texts in every language that the client speaks, whichever its interface is in: a
 * trader looks for what he knows a parameter by.
 */
class SpokenTexts {
public:
    SpokenTexts();
    ~SpokenTexts();

    const QVector<RecordFields::Translate>& languages() const { return m_languages; }

private:
    std::vector<std::unique_ptr<QTranslator>> m_translators;
    QVector<RecordFields::Translate> m_languages;
};
