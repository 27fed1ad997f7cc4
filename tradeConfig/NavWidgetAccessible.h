#pragma once

#include "tradeConfig/PartsAccessible.h"

class CNavWidget;

/// A navigation list as a list of items.
class NavWidgetAccessible : public PartsAccessible {
public:
    /// A second time does nothing. Interfaces are made when somebody asks for one.
    static void install();

    explicit NavWidgetAccessible(CNavWidget* list);

    int childCount() const override;
    int generation() const override;

    QString partName(int index) const override;
    QRectF partRect(int index) const override;
    QAccessible::Role partRole(int index) const override;
    void addPartState(int index, QAccessible::State& state) const override;
    bool canPress(int index) const override;
    void press(int index) override;

protected:
    int partAt(QPoint point) const override;

private:
    CNavWidget* list() const;
};
