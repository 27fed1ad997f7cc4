#pragma once

#include "tradeConfig/PartsAccessible.h"

class CSwitchEx;
struct SwitchItem;

/// A switch bar as a list of page tabs: the main items in their order, then the end items from
/// the innermost outwards, as they stand on the screen.
class SwitchExAccessible : public PartsAccessible {
public:
    /// Once in the life of the library; interfaces only come to be when asked for.
    static void install();

    explicit SwitchExAccessible(CSwitchEx* bar);

    int childCount() const override;
    bool hasPart(int key) const override;
    QString partName(int key) const override;
    QRectF partRect(int key) const override;
    QAccessible::Role partRole(int key) const override;
    void addPartState(int key, QAccessible::State& state) const override;
    bool canPress(int key) const override;
    void press(int key) override;

protected:
    int keyOf(int index) const override;
    int indexOf(int key) const override;
    bool partAt(QPoint point, int& key) const override;

private:
    CSwitchEx* bar() const;
    SwitchItem* item(int key) const;
};
