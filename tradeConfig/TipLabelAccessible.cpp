#include "tradeConfig/TipLabelAccessible.h"

#include "tradeConfig/AccessibleFactory.h"
#include "tradeConfig/TipLabel.h"

void TipLabelAccessible::install() { AccessibleFactory::install<CTipLabel, TipLabelAccessible>(); }

TipLabelAccessible::TipLabelAccessible(CTipLabel* tip)
    : QAccessibleWidget(tip, QAccessible::AlertMessage)
{
}

QString TipLabelAccessible::text(QAccessible::Text which) const
{
    const QString own = QAccessibleWidget::text(which);
    return which == QAccessible::Name && own.isEmpty() ? static_cast<QLabel*>(widget())->text()
                                                       : own;
}
