#include "tradeConfig/dialog/QuantityValidator.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>

namespace {

// Whether @p text is @p whole with characters taken out.
bool isTakenFrom(const QString& text, const QString& whole)
{
    const auto* next = whole.cbegin();
    for (const QChar character : text) {
        next = std::find(next, whole.cend(), character);
        if (next == whole.cend())
            return false;
        ++next;
    }
    return true;
}

} // namespace

QuantityValidator::QuantityValidator(int bottom, int top, QObject* parent)
    : QIntValidator(bottom, top, parent)
{
}

QValidator::State QuantityValidator::validate(QString& input, int& position) const
{
    const auto* const box = qobject_cast<QSpinBox*>(QApplication::focusWidget());
    if (!box)
        return stateOf(input);
    const QString unit = box->suffix();
    const bool hasUnit = input.endsWith(unit);
    if (stateOf(hasUnit ? input.chopped(unit.size()) : input) == Invalid)
        return Invalid;
    if (!hasUnit)
        input += unit;
    return static_cast<const QAbstractSpinBox*>(box)->validate(input, position);
}

QValidator::State QuantityValidator::stateOf(const QString& number) const
{
    qint64 value = 0;
    for (const QChar character : number) {
        if (character < QLatin1Char('0') || character > QLatin1Char('9'))
            return Invalid;
        value = value * 10 + (character.unicode() - u'0');
        if (value > top())
            return Invalid;
    }
    return number.isEmpty() || value < bottom() ? Intermediate : Acceptable;
}

void QuantityValidator::install(QLineEdit& edit) const
{
    edit.setValidator(this);
    if (edit.text().isEmpty())
        return;
    // A line edit takes the text that it shows already for valid until it is set once more.
    const QSignalBlocker unchanged(edit);
    const QString text = edit.text();
    const int cursor = edit.cursorPosition();
    const int selected = edit.selectionStart();
    const int length = edit.selectionLength();
    edit.clear();
    edit.setText(text);
    edit.setCursorPosition(cursor);
    if (length > 0)
        edit.setSelection(selected, length);
}

void QuantityValidator::guard(QLineEdit& edit) const
{
    install(edit);
    connect(&edit, &QLineEdit::textChanged, &edit,
            [this, &edit, last = edit.text()](const QString& text) mutable {
                QString copy = text;
                int cursor = 0;
                if (!edit.isModified() || validate(copy, cursor) != Invalid
                    || isTakenFrom(text, last))
                    last = text;
                else
                    edit.undo();
            });
}

void QuantityValidator::guard(QSpinBox& box)
{
    box.findChild<QLineEdit*>()->setValidator(this);
    box.installEventFilter(this);
}

bool QuantityValidator::eventFilter(QObject* watched, QEvent* event)
{
    // What came in while the box had no focus, its unit with it, has been taken for invalid.
    if (event->type() == QEvent::FocusIn)
        install(*watched->findChild<QLineEdit*>());
    return QIntValidator::eventFilter(watched, event);
}
