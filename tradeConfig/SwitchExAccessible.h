#pragma once

#include "tradeConfig/PartsAccessible.h"

class CSwitchEx;

/// A switch bar as a list of page tabs: the main items in their order, then the end items from
/// the innermost outwards, as they stand on the screen.
class SwitchExAccessible : public PartsAccessible {
public:
    /// A second time does nothing. Interfaces are made when somebody asks for one.
    static void install();

    explicit SwitchExAccessible(CSwitchEx* bar);

    int childCount() const override;
    int generation() const override;
    int keyOf(int index) const override;
    int indexOf(int key) const override;

    QString partName(int index) const override;
    QRectF partRect(int index) const override;
    QAccessible::Role partRole(int index) const override;
    void addPartState(int index, QAccessible::State& state) const override;
    bool canPress(int index) const override;
    void press(int index) override;

protected:
    int partAt(QPoint point) const override;

private:
    CSwitchEx* bar() const;
};
