#include "tradeConfig/dialog/PageKeys.h"

#include "tradeConfig/TableLineEdit.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QEvent>
#include <QKeySequence>
#include <QShortcut>
#include <QStackedWidget>

namespace {

// Presses the entry that lies so many steps after the selected one; the first follows the last.
void pressNeighbour(QWidget& widget, int step)
{
    const QAccessibleInterface* const parts = QAccessible::queryAccessibleInterface(&widget);
    const int count = parts ? parts->childCount() : 0;
    int index = 0;
    while (index < count && !parts->child(index)->state().selected)
        ++index;
    QAccessibleInterface* const next
        = index < count ? parts->child((index + step + count) % count) : nullptr;
    if (QAccessibleActionInterface* const action = next ? next->actionInterface() : nullptr)
        action->doAction(QAccessibleActionInterface::pressAction());
    // The highlight under the mouse would stay on the entry that was left.
    if (!widget.underMouse()) {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&widget, &leave);
    }
}

// X11 counts Shift as a part of Backtab: a shortcut with both, as the toolkit names it, never comes
// there, but one with Shift and Tab does.
QVector<QKeySequence> withPlainTab(QVector<QKeySequence> keys)
{
    const int modifiers = int(Qt::KeyboardModifierMask);
    for (const QKeySequence& key : QVector<QKeySequence>(keys)) {
        if ((key[0] & ~modifiers) == Qt::Key_Backtab)
            keys << QKeySequence((key[0] & modifiers) | Qt::Key_Tab);
    }
    return keys;
}

void keepFocusOutOfCells(QStackedWidget& stack)
{
    QObject::connect(&stack, &QStackedWidget::currentChanged, &stack, [&stack] {
        const auto* const cell = qobject_cast<CTableLineEdit*>(stack.window()->focusWidget());
        if (cell && stack.isAncestorOf(cell))
            stack.currentWidget()->setFocus(Qt::OtherFocusReason);
    });
}

} // namespace

PageKeys::PageKeys(QWidget& dialog, QWidget& bar, QStackedWidget& top, QVector<Group> groups)
    : QObject(&dialog)
    , m_bar(bar)
    , m_top(top)
    , m_groups(std::move(groups))
{
    const auto bindings
        = [](QKeySequence::StandardKey key) { return QKeySequence::keyBindings(key).toVector(); };
    addKeys(bindings(QKeySequence::NextChild), &PageKeys::turnGroup, 1);
    addKeys(withPlainTab(bindings(QKeySequence::PreviousChild)), &PageKeys::turnGroup, -1);
    addKeys({QKeySequence(int(Qt::CTRL) + Qt::Key_PageDown)}, &PageKeys::turnPage, 1);
    addKeys({QKeySequence(int(Qt::CTRL) + Qt::Key_PageUp)}, &PageKeys::turnPage, -1);

    keepFocusOutOfCells(top);
    for (const Group& group : qAsConst(m_groups))
        keepFocusOutOfCells(*group.stack);
}

void PageKeys::addKeys(const QVector<QKeySequence>& keys, void (PageKeys::*turn)(int), int step)
{
    auto* const dialog = static_cast<QWidget*>(parent());
    for (const QKeySequence& key : keys) {
        auto* const shortcut = new QShortcut(key, dialog);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, dialog, turn, step] {
            // Who works by keyboard sees where the focus is, as after Tab.
            dialog->window()->setAttribute(Qt::WA_KeyboardFocusChange);
            (this->*turn)(step);
        });
    }
}

void PageKeys::turnGroup(int step) { pressNeighbour(m_bar, step); }

void PageKeys::turnPage(int step) { pressNeighbour(*m_groups.at(m_top.currentIndex()).list, step); }
