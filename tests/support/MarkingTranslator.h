#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// While it lives, marks with "T:" what passes through translation under the dialog's context.
class MarkingTranslator : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        if (qstrcmp(context, "CTradeConfigWidget") != 0)
            return {};
        return QStringLiteral("T:") + QString::fromUtf8(source);
    }
    bool isEmpty() const override { return false; }

    const bool installed = QCoreApplication::installTranslator(this);
};
