#pragma once

#include <QObject>

/**
 * Keeps the wheel from changing a value in passing: a combo box or a spin box takes it only while
 * it has the focus, and the wheel never gives it the focus. Otherwise the wheel goes on to what is
 * around the control, such as a scroll area.
 */
class WheelGuard : public QObject {
    Q_OBJECT

public:
    /// Guards every combo box and spin box that @p form holds by now. Child of @p form.
    explicit WheelGuard(QWidget& form);

    bool eventFilter(QObject* watched, QEvent* event) override;
};
