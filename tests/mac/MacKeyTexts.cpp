// Preloaded into a test, has QKeySequence write and read key texts as Qt does on macOS: symbols in
// the order Control, Option, Shift, Command, and symbols for some keys. Qt's Ctrl is the Command
// key.

#include <QKeySequence>

#include <cstring>
#include <dlfcn.h>

namespace {

struct Symbol {
    int code;
    ushort symbol;
};

constexpr Symbol modifiers[]
    = {{Qt::META, 0x2303}, {Qt::ALT, 0x2325}, {Qt::SHIFT, 0x21E7}, {Qt::CTRL, 0x2318}};

constexpr Symbol keys[] = {
    {Qt::Key_Escape, 0x238B},    {Qt::Key_Tab, 0x21E5},    {Qt::Key_Backtab, 0x21E4},
    {Qt::Key_Backspace, 0x232B}, {Qt::Key_Return, 0x21B5}, {Qt::Key_Enter, 0x2324},
    {Qt::Key_Delete, 0x2326},    {Qt::Key_Home, 0x2196},   {Qt::Key_End, 0x2198},
    {Qt::Key_Left, 0x2190},      {Qt::Key_Up, 0x2191},     {Qt::Key_Right, 0x2192},
    {Qt::Key_Down, 0x2193},      {Qt::Key_PageUp, 0x21DE}, {Qt::Key_PageDown, 0x21DF},
};

/// The toolkit's own function, which the one of that name here stands before.
template <typename Function> Function toolkits(const char* name)
{
    void* const address = dlsym(RTLD_NEXT, name);
    Function function;
    static_assert(sizeof function == sizeof address);
    std::memcpy(&function, &address, sizeof function);
    return function;
}

#define CONSTRUCTOR "_ZN12QKeySequenceC1ERK7QStringNS_14SequenceFormatE"
#define TO_STRING "_ZNK12QKeySequence8toStringENS_14SequenceFormatE"

void construct(QKeySequence* self, const QString& text, int format)
{
    static const auto own = toolkits<void (*)(QKeySequence*, const QString&, int)>(CONSTRUCTOR);
    own(self, text, format);
}

QString toString(const QKeySequence* self, int format)
{
    static const auto own = toolkits<QString (*)(const QKeySequence*, int)>(TO_STRING);
    return own(self, format);
}

} // namespace

extern "C" __attribute__((visibility("default"))) void
macConstruct(QKeySequence* self, const QString& text, int format) asm(CONSTRUCTOR);
void macConstruct(QKeySequence* self, const QString& text, int format)
{
    if (format != QKeySequence::NativeText) {
        construct(self, text, format);
        return;
    }
    QString rest = text;
    int held = 0;
    for (const Symbol& modifier : modifiers) {
        if (rest.contains(QChar(modifier.symbol))) {
            rest.remove(QChar(modifier.symbol));
            held |= modifier.code;
        }
    }
    for (const Symbol& key : keys) {
        if (rest == QChar(key.symbol)) {
            new (self) QKeySequence(key.code | held);
            return;
        }
    }
    construct(self, rest, format);
    if (held != 0 && !self->isEmpty())
        *self = QKeySequence((*self)[0] | held);
}

__attribute__((visibility("default"))) QString macToString(const QKeySequence* self,
                                                           int format) asm(TO_STRING);
QString macToString(const QKeySequence* self, int format)
{
    if (format != QKeySequence::NativeText || self->isEmpty())
        return toString(self, format);
    const int code = (*self)[0];
    QString text;
    for (const Symbol& modifier : modifiers) {
        if (code & modifier.code)
            text += QChar(modifier.symbol);
    }
    const int bare = code & ~int(Qt::KeyboardModifierMask);
    for (const Symbol& key : keys) {
        if (bare == key.code)
            return text + QChar(key.symbol);
    }
    const QKeySequence unmodified(bare);
    return text + toString(&unmodified, format);
}
