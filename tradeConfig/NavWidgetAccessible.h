#pragma once

#include "tradeConfig/PartsAccessible.h"

class CNavWidget;

/// A navigation list as a list of items, told apart by their index.
class NavWidgetAccessible : public PartsAccessible {
public:
    /// Once in the life of the library; interfaces only come to be when asked for.
    static void install();

    explicit NavWidgetAccessible(CNavWidget* list);

    int childCount() const override;
    bool hasPart(int key) const override;
    QString partName(int key) const override;
    QRectF partRect(int key) const override;
    QAccessible::Role partRole(int key) const override;
    void addPartState(int key, QAccessible::State& state) const override;
    bool canPress(int key) const override;
    void press(int key) override;

protected:
    bool partAt(QPoint point, int& key) const override;

private:
    CNavWidget* list() const;
};
