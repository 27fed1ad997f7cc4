#include "tradeConfig/dialog/ButtonKeys.h"

#include <QKeyEvent>
#include <QPushButton>

ButtonKeys::ButtonKeys(const QVector<QPushButton*>& buttons, QObject* parent)
    : QObject(parent)
{
    for (QPushButton* const button : buttons) {
        button->setAutoDefault(false);
        button->installEventFilter(this);
    }
}

bool ButtonKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
        return false;
    // A held key that was pressed elsewhere, or closed a box, must not press once more.
    if (!key->isAutoRepeat())
        static_cast<QPushButton*>(watched)->click();
    return true;
}
