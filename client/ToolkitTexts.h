#pragma once

#include <QTranslator>

/**
 * The translations of the toolkit's own texts: buttons, context menus, file dialogs, the help on
 * the command line.
 *
 * The names of keys stay as they are. They are part of the hotkeys in the record, which are
 * compared as texts and must not change with the language.
 */
class ToolkitTexts : public QTranslator {
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override;
};
