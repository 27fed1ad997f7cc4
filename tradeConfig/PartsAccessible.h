#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QList>

/**
 * The accessible interface of a widget that paints several parts by itself: tabs, entries. Each
 * part becomes a child interface, with a name, a place, a role, a state and at most a press action.
 *
 * A part has an index, which says where it stands among the others, and a key, which says which
 * one it is. The index changes when a part is added before it, the key does not. A child
 * interface keeps its part's key. Once the widget has replaced its parts, the interfaces of the
 * old ones are invalid for good; the new ones get interfaces of their own.
 */
class PartsAccessible : public QAccessibleWidget {
public:
    PartsAccessible(QWidget* widget, QAccessible::Role role);
    ~PartsAccessible() override;

    int childCount() const override = 0;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    using QAccessibleWidget::widget;

    /// Another number each time the widget has replaced its parts. Keys may come back then.
    virtual int generation() const = 0;
    virtual int keyOf(int index) const { return index; }
    virtual int indexOf(int key) const { return key; } ///< of a part that was not replaced

    virtual QString partName(int index) const = 0;
    virtual QRectF partRect(int index) const = 0; ///< in the widget's coordinates
    virtual QAccessible::Role partRole(int index) const = 0;

    /// Adds to what every part's @p state has: disabled, invisible, off-screen.
    virtual void addPartState(int index, QAccessible::State& state) const = 0;

    virtual bool canPress(int index) const = 0;
    virtual void press(int index) = 0;

protected:
    /// The index of the part that a click at @p point would meet; -1 if none.
    virtual int partAt(QPoint point) const = 0;

private:
    QAccessibleInterface* part(int index) const;
    void retireReplacedParts() const;

    // Made when somebody asks, which the toolkit does through const functions.
    mutable QHash<int, QAccessible::Id> m_parts; // by key
    mutable QList<QAccessible::Id> m_retired; // of the generation before
    mutable int m_generation = 0; // of m_parts
};
