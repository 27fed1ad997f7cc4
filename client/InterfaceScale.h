#pragma once

#include <QByteArray>

/**
 * Makes the next QApplication draw everything @p percent / 100 times as large, on top of what
 * the environment asks for. The environment is as before when this object is gone, so that
 * programs started by this one, this one's successor among them, do not inherit the factor.
 */
class InterfaceScale {
public:
    explicit InterfaceScale(int percent);
    ~InterfaceScale();
    InterfaceScale(const InterfaceScale&) = delete;
    InterfaceScale& operator=(const InterfaceScale&) = delete;

private:
    QByteArray m_before;
    bool m_wasSet;
};
