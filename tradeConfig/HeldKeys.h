#pragma once

#include <QSet>

class QKeyEvent;

/**
 * Tells the keys that went down in one place from those that are held since before.
 *
 * The place passes on every key event that it gets, and forgets when its focus goes.
 */
class HeldKeys {
public:
    /// Whether the key of @p press went down here; false for the repeats of any other.
    bool isPressedHere(const QKeyEvent& press);

    void noteRelease(const QKeyEvent& release);
    void forget() { m_pressedHere.clear(); }

private:
    QSet<quint32> m_pressedHere;
    quint32 m_releasedKey = 0;
    ulong m_releaseTime = 0; ///< milliseconds
};
