#include "tradeConfig/HeldKeys.h"

#include <QKeyEvent>

namespace {

// A held key goes on repeating when Shift comes or goes, as another Qt::Key. The window system's
// codes stay, but not every system tells both.
quint32 physicalKey(const QKeyEvent& event)
{
    if (event.nativeScanCode() != 0)
        return event.nativeScanCode();
    return event.nativeVirtualKey() != 0 ? event.nativeVirtualKey() : quint32(event.key());
}

} // namespace

bool HeldKeys::isPressedHere(const QKeyEvent& press)
{
    const quint32 key = physicalKey(press);
    if (m_pressedHere.contains(key))
        return true;
    // X11 repeats a held key by a release and a press with the same time. The toolkit reports them
    // as a repeat only if both have arrived when it looks. No user presses a key again within the
    // same millisecond; a program that does so gives no scan code.
    const bool isHalfRepeat
        = press.nativeScanCode() != 0 && key == m_releasedKey && press.timestamp() == m_releaseTime;
    if (press.isAutoRepeat() || isHalfRepeat)
        return false;
    m_pressedHere.insert(key);
    return true;
}

void HeldKeys::noteRelease(const QKeyEvent& release)
{
    m_releasedKey = physicalKey(release);
    m_releaseTime = release.timestamp();
}
