#include "fuzz/events/Assistive.h"

#include "fuzz/FuzzInput.h"

#include <QAccessible>
#include <QColor>
#include <QWidget>
#include <QWindow>

namespace {

constexpr QAccessible::Text texts[]
    = {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help,
       QAccessible::Accelerator};

void askText(QAccessibleTextInterface& text, FuzzInput& input, bool ownPart)
{
    const int count = text.characterCount();
    const int at = input.below(count + 3) - 1;
    int start = 0;
    int end = 0;
    text.text(0, count);
    text.text(at, at + input.below(5));
    const auto boundary = QAccessible::TextBoundaryType(input.below(6));
    if (at >= 0 && at <= count) {
        // The toolkit's own parts may look for the end of a word for ever.
        const bool endless
            = boundary == QAccessible::WordBoundary || boundary == QAccessible::SentenceBoundary;
        if (ownPart || !endless)
            text.textAtOffset(at, boundary, &start, &end);
        text.textBeforeOffset(at, boundary, &start, &end);
        text.textAfterOffset(at, boundary, &start, &end);
        text.attributes(at, &start, &end);
        text.characterRect(at);
    }
    text.offsetAtPoint(QPoint(input.below(900), input.below(700)));
    for (int index = 0; index < text.selectionCount(); ++index)
        text.selection(index, &start, &end);
    text.cursorPosition();
}

void askTable(QAccessibleTableInterface& table, FuzzInput& input)
{
    const int row = input.below(table.rowCount());
    const int column = input.below(table.columnCount());
    table.cellAt(row, column);
    table.rowDescription(row);
    table.columnDescription(column);
    table.selectedCells();
    table.selectedRows();
    table.isRowSelected(row);
    table.caption();
    table.summary();
}

void ask(QAccessibleInterface& part, FuzzInput& input)
{
    for (const QAccessible::Text which : texts)
        part.text(which);
    const QRect place = part.rect();
    part.state();
    part.role();
    part.childAt(place.center().x(), place.center().y());
    part.focusChild();
    part.window();
    part.foregroundColor();
    part.backgroundColor();
    part.relations();
    if (QAccessibleInterface* const parent = part.parent())
        MUST(parent->indexOfChild(&part) < parent->childCount());
    if (auto* const actions = part.actionInterface()) {
        for (const QString& name : actions->actionNames()) {
            actions->localizedActionName(name);
            actions->localizedActionDescription(name);
            actions->keyBindingsForAction(name);
        }
    }
    if (auto* const value = part.valueInterface()) {
        value->currentValue();
        value->minimumValue();
        value->maximumValue();
        value->minimumStepSize();
    }
    if (auto* const text = part.textInterface())
        askText(*text, input, part.object() && part.object()->inherits("CTableLineEdit"));
    if (auto* const table = part.tableInterface())
        askTable(*table, input);
    if (auto* const cell = part.tableCellInterface()) {
        cell->rowIndex();
        cell->columnHeaderCells();
        cell->table();
    }
}

void act(QAccessibleInterface& part, FuzzInput& input)
{
    switch (input.below(5)) {
    case 0:
        if (auto* const text = part.textInterface()) {
            const int count = text->characterCount();
            text->setCursorPosition(input.below(count + 1));
            text->addSelection(input.below(count + 1), input.below(count + 1));
            text->scrollToSubstring(0, count);
            if (input.flag() && text->selectionCount() > 0)
                text->removeSelection(0);
        }
        break;
    case 1:
        if (auto* const text = part.editableTextInterface()) {
            const int count = part.textInterface() ? part.textInterface()->characterCount() : 0;
            const int start = input.below(count + 1);
            const int end = start + input.below(count - start + 1);
            const QString typed = QString::number(input.integer());
            if (input.flag())
                text->replaceText(start, end, typed);
            else if (input.flag())
                text->insertText(start, typed);
            else
                text->deleteText(start, end);
        }
        break;
    case 2:
        if (auto* const value = part.valueInterface())
            value->setCurrentValue(input.integer());
        break;
    case 3:
        if (auto* const table = part.tableInterface()) {
            if (input.flag())
                table->selectRow(input.below(table->rowCount()));
            else
                table->unselectRow(input.below(table->rowCount()));
        }
        break;
    default:
        if (auto* const actions = part.actionInterface()) {
            const QStringList names = actions->actionNames();
            if (!names.isEmpty())
                actions->doAction(names.at(input.below(names.size())));
        }
    }
}

void askAll(QAccessibleInterface* part, FuzzInput& input, int depth)
{
    constexpr int deepest = 20;
    if (!part || !part->isValid() || depth > deepest)
        return;
    ask(*part, input);
    for (int index = 0; index < part->childCount(); ++index)
        askAll(part->child(index), input, depth + 1);
}

// What the bridges do when they are told: they look at the part before the widget goes on.
void heard(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::ObjectDestroyed)
        return;
    QAccessibleInterface* const part = event->accessibleInterface();
    if (!part || !part->isValid())
        return;
    part->text(QAccessible::Name);
    part->role();
    part->state();
    if (part->parent())
        part->parent()->role();
}

} // namespace

void Assistive::attach()
{
    QAccessible::setActive(true);
    QAccessible::installUpdateHandler(heard);
}

void Assistive::use(QWidget& target, FuzzInput& input)
{
    QAccessibleInterface* part
        = QAccessible::queryAccessibleInterface(input.below(3) ? &target : target.window());
    if (!part || !part->isValid())
        return;
    constexpr int oneInHowMany = 60;
    if (!input.below(oneInHowMany)) {
        askAll(part, input, 0);
        return;
    }
    for (int steps = input.below(8); steps > 0; --steps) {
        const int children = part->childCount();
        QAccessibleInterface* next = nullptr;
        if (children > 0 && input.below(6))
            next = part->child(input.below(children));
        else
            next = input.flag() ? part->parent() : part->focusChild();
        if (!next || !next->isValid())
            break;
        part = next;
    }
    if (input.below(3))
        ask(*part, input);
    else
        act(*part, input);
}
