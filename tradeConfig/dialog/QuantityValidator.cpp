#include "tradeConfig/dialog/QuantityValidator.h"

QuantityValidator::QuantityValidator(int bottom, int top, QObject* parent)
    : QIntValidator(bottom, top, parent)
{
}

QValidator::State QuantityValidator::validate(QString& input, int&) const
{
    qint64 value = 0;
    for (const QChar character : qAsConst(input)) {
        if (character < QLatin1Char('0') || character > QLatin1Char('9'))
            return Invalid;
        value = value * 10 + (character.unicode() - u'0');
        if (value > top())
            return Invalid;
    }
    return input.isEmpty() || value < bottom() ? Intermediate : Acceptable;
}
