#include "client/ToolkitTexts.h"

QString ToolkitTexts::translate(const char* context, const char* sourceText,
                                const char* disambiguation, int n) const
{
    if (qstrcmp(context, "QShortcut") == 0)
        return QString();
    return QTranslator::translate(context, sourceText, disambiguation, n);
}
