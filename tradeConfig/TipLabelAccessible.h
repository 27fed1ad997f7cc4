#pragma once

#include <QAccessibleWidget>

class CTipLabel;

/// A hint as an alert, which is said when it comes: the toolkit has a label for one of the texts
/// that stand about.
class TipLabelAccessible : public QAccessibleWidget {
public:
    /// A second time does nothing. Interfaces are made when somebody asks for one.
    static void install();

    explicit TipLabelAccessible(CTipLabel* tip);

    QString text(QAccessible::Text which) const override;
};
