#include "tradeConfig/dialog/AccessibleNames.h"

#include <QLabel>

QString AccessibleNames::of(const QLabel& label)
{
    const QString text = label.text();
    const bool hasColon = text.endsWith(QLatin1Char(':')) || text.endsWith(QChar(u'：'));
    return hasColon ? text.chopped(1) : text;
}

void AccessibleNames::giveFrom(std::initializer_list<const QLabel*> labels)
{
    for (const QLabel* const label : labels)
        label->buddy()->setAccessibleName(of(*label));
}
