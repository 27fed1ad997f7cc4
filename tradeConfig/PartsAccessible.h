#pragma once

#include <QAccessibleWidget>
#include <QHash>

/// Keeps a factory of accessibility interfaces installed while it lives. As a static object it
/// ends with the library, so that an unloaded module leaves no dangling function behind.
class AccessibleFactory {
public:
    explicit AccessibleFactory(QAccessible::InterfaceFactory factory)
        : m_factory(factory)
    {
        QAccessible::installFactory(m_factory);
    }
    ~AccessibleFactory() { QAccessible::removeFactory(m_factory); }
    AccessibleFactory(const AccessibleFactory&) = delete;
    AccessibleFactory& operator=(const AccessibleFactory&) = delete;

private:
    QAccessible::InterfaceFactory m_factory;
};

/**
 * What assistive technology sees of a widget that paints several parts by itself: each part is
 * a child with a name, a place, a state and at most a press action.
 *
 * A part is told by a key that stays its own as long as it exists. Its interface is made when
 * first asked for and lives as long as the widget's; while no part has its key it is invalid.
 */
class PartsAccessible : public QAccessibleWidget {
public:
    PartsAccessible(QWidget* widget, QAccessible::Role role);
    ~PartsAccessible() override;

    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

    virtual bool hasPart(int key) const = 0;
    virtual QString partName(int key) const = 0;
    virtual QRectF partRect(int key) const = 0; ///< in the widget's coordinates
    virtual QAccessible::Role partRole(int key) const = 0;
    virtual void addPartState(int key, QAccessible::State& state) const = 0;
    virtual bool canPress(int key) const = 0;
    virtual void press(int key) = 0;

    using QAccessibleWidget::widget;
    int childCount() const override = 0;

protected:
    virtual int keyOf(int index) const { return index; }
    virtual int indexOf(int key) const { return key; }

    /// Which part a click at @p point would meet; false if none.
    virtual bool partAt(QPoint point, int& key) const = 0;

private:
    QAccessibleInterface* part(int key) const;

    mutable QHash<int, QAccessible::Id> m_parts; // by key
};
