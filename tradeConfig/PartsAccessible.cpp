#include "tradeConfig/PartsAccessible.h"

#include <QWidget>

namespace {

class PartAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    PartAccessible(PartsAccessible* whole, int key)
        : m_whole(whole)
        , m_key(key)
    {
    }

    int key() const { return m_key; }

    bool isValid() const override { return m_whole->isValid() && m_whole->hasPart(m_key); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_whole->window(); }
    QAccessibleInterface* parent() const override { return m_whole; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override { }

    QString text(QAccessible::Text which) const override
    {
        return which == QAccessible::Name && isValid() ? m_whole->partName(m_key) : QString();
    }

    QRect rect() const override
    {
        if (!isValid())
            return QRect();
        QRect place = m_whole->partRect(m_key).toRect();
        place.translate(m_whole->widget()->mapToGlobal(QPoint(0, 0)));
        return place;
    }

    QAccessible::Role role() const override
    {
        return isValid() ? m_whole->partRole(m_key) : QAccessible::NoRole;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.disabled = !m_whole->widget()->isEnabled();
        state.invisible = !m_whole->widget()->isVisible();
        m_whole->addPartState(m_key, state);
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override
    {
        return canPress() ? QStringList{pressAction()} : QStringList();
    }

    void doAction(const QString& name) override
    {
        if (name == pressAction() && canPress())
            m_whole->press(m_key);
    }

    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    bool canPress() const
    {
        return isValid() && m_whole->widget()->isEnabled() && m_whole->canPress(m_key);
    }

    PartsAccessible* m_whole; // which owns this
    int m_key;
};

} // namespace

PartsAccessible::PartsAccessible(QWidget* widget, QAccessible::Role role)
    : QAccessibleWidget(widget, role)
{
}

PartsAccessible::~PartsAccessible()
{
    for (const QAccessible::Id id : qAsConst(m_parts))
        QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* PartsAccessible::part(int key) const
{
    if (const QAccessible::Id known = m_parts.value(key, 0))
        return QAccessible::accessibleInterface(known);
    auto* const made = new PartAccessible(const_cast<PartsAccessible*>(this), key);
    m_parts.insert(key, QAccessible::registerAccessibleInterface(made));
    return made;
}

QAccessibleInterface* PartsAccessible::child(int index) const
{
    return index >= 0 && index < childCount() ? part(keyOf(index)) : nullptr;
}

int PartsAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const known = dynamic_cast<const PartAccessible*>(child);
    return known && known->parent() == this && known->isValid() ? indexOf(known->key()) : -1;
}

QAccessibleInterface* PartsAccessible::childAt(int x, int y) const
{
    if (!isValid())
        return nullptr;
    const QPoint point = widget()->mapFromGlobal(QPoint(x, y));
    int key = 0;
    return widget()->rect().contains(point) && partAt(point, key) ? part(key) : nullptr;
}
