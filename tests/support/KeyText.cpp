#include "support/KeyText.h"

namespace {

struct Symbol {
    const char* onLinux;
    ushort onMac;
};

// In the order in which macOS writes them.
constexpr Symbol modifiers[] = {{"Alt+", 0x2325}, {"Shift+", 0x21E7}, {"Ctrl+", 0x2318}};

constexpr Symbol keys[] = {
    {"Esc", 0x238B},    {"Tab", 0x21E5},   {"Backtab", 0x21E4}, {"Backspace", 0x232B},
    {"Return", 0x21B5}, {"Enter", 0x2324}, {"Del", 0x2326},     {"Home", 0x2196},
    {"End", 0x2198},    {"Left", 0x2190},  {"Up", 0x2191},      {"Right", 0x2192},
    {"Down", 0x2193},   {"PgUp", 0x21DE},  {"PgDown", 0x21DF},
};

bool writesAsMac()
{
#ifdef Q_OS_MACOS
    return true;
#else
    // tests/mac/MacKeyTexts.cpp, which makes the toolkit write as on macOS.
    return qgetenv("LD_PRELOAD").contains("mac-key-texts");
#endif
}

} // namespace

QString keyText(const QString& onLinux) { return writesAsMac() ? keyTextOnMac(onLinux) : onLinux; }

QString keyTextOnMac(const QString& onLinux)
{
    QString written;
    QString key = onLinux;
    for (const Symbol& modifier : modifiers) {
        const QLatin1String name(modifier.onLinux);
        if (!key.contains(name))
            continue;
        key.remove(name);
        written += QChar(modifier.onMac);
    }
    for (const Symbol& named : keys) {
        if (key == QLatin1String(named.onLinux))
            return written + QChar(named.onMac);
    }
    return written + key;
}
