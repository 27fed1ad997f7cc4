#include "tradeConfig/dialog/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

WheelGuard::WheelGuard(QWidget& form)
    : QObject(&form)
{
    const auto guard = [this](const auto& controls) {
        for (QWidget* const control : controls) {
            control->setFocusPolicy(Qt::StrongFocus);
            control->installEventFilter(this);
        }
    };
    guard(form.findChildren<QComboBox*>());
    guard(form.findChildren<QAbstractSpinBox*>());
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
        return false;
    event->ignore();
    return true;
}
