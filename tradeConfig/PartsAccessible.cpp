#include "tradeConfig/PartsAccessible.h"

#include <QWidget>

namespace {

constexpr int gone = -1;

// One part. It looks its index up whenever it is asked for something.
class PartAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    PartAccessible(PartsAccessible* whole, int key)
        : m_whole(whole)
        , m_key(key)
        , m_generation(whole->generation())
    {
    }

    int index() const
    {
        return m_whole->isValid() && m_whole->generation() == m_generation ? m_whole->indexOf(m_key)
                                                                           : gone;
    }

    bool isValid() const override { return index() != gone; }
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
        const int place = index();
        return which == QAccessible::Name && place != gone ? m_whole->partName(place) : QString();
    }

    QRect rect() const override
    {
        const int place = index();
        if (place == gone)
            return QRect();
        const QPoint origin = m_whole->widget()->mapToGlobal(QPoint(0, 0));
        return m_whole->partRect(place).toRect().translated(origin);
    }

    QAccessible::Role role() const override
    {
        const int place = index();
        return place != gone ? m_whole->partRole(place) : QAccessible::NoRole;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        const int place = index();
        if (place == gone) {
            state.invalid = true;
            return state;
        }
        state.disabled = !m_whole->widget()->isEnabled();
        state.invisible = !m_whole->widget()->isVisible();
        state.offscreen = !m_whole->partRect(place).intersects(m_whole->widget()->rect());
        m_whole->addPartState(place, state);
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
            m_whole->press(index());
    }

    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    bool canPress() const
    {
        const int place = index();
        return place != gone && m_whole->widget()->isEnabled() && m_whole->canPress(place);
    }

    PartsAccessible* m_whole; // which deletes this before itself
    int m_key;
    int m_generation;
};

template <typename Ids> void deleteAll(const Ids& ids)
{
    for (const QAccessible::Id id : ids)
        QAccessible::deleteAccessibleInterface(id);
}

} // namespace

PartsAccessible::PartsAccessible(QWidget* widget, QAccessible::Role role)
    : QAccessibleWidget(widget, role)
{
}

PartsAccessible::~PartsAccessible()
{
    deleteAll(m_parts);
    deleteAll(m_retired);
}

QAccessibleInterface* PartsAccessible::part(int index) const
{
    retireReplacedParts();
    const int key = keyOf(index);
    QAccessible::Id& id = m_parts[key];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(
            new PartAccessible(const_cast<PartsAccessible*>(this), key));
    return QAccessible::accessibleInterface(id);
}

// Somebody may still hold the interfaces of the parts that were just replaced, and finds them
// invalid. Those of the parts before are deleted, so that they do not pile up.
void PartsAccessible::retireReplacedParts() const
{
    if (m_generation == generation())
        return;
    deleteAll(m_retired);
    m_retired = m_parts.values();
    m_parts.clear();
    m_generation = generation();
}

QAccessibleInterface* PartsAccessible::child(int index) const
{
    return index >= 0 && index < childCount() ? part(index) : nullptr;
}

int PartsAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const known = dynamic_cast<const PartAccessible*>(child);
    return known && known->parent() == this ? known->index() : -1;
}

QAccessibleInterface* PartsAccessible::childAt(int x, int y) const
{
    if (!isValid())
        return nullptr;
    const QPoint point = widget()->mapFromGlobal(QPoint(x, y));
    return widget()->rect().contains(point) ? child(partAt(point)) : nullptr;
}
