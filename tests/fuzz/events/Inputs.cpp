#include "fuzz/events/Inputs.h"

#include "fuzz/FuzzInput.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QHelpEvent>
#include <QImage>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QPointer>
#include <QTextCharFormat>
#include <QUrl>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

#include <memory>

// Exported by the toolkit for its own test library: events as they come from the window system.
Q_GUI_EXPORT extern void qt_handleMouseEvent(QWindow* window, const QPointF& local,
                                             const QPointF& global, Qt::MouseButtons state,
                                             Qt::MouseButton button, QEvent::Type type,
                                             Qt::KeyboardModifiers held, int time);
Q_GUI_EXPORT extern void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int code,
                                           Qt::KeyboardModifiers held, const QString& text,
                                           bool repeated, ushort count);

namespace {

// Far enough apart that no two presses are a double click by accident.
int nextTime()
{
    static int time = 0;
    return time += 600;
}

Qt::KeyboardModifiers modifiers(FuzzInput& input)
{
    return input.below(3) ? Qt::KeyboardModifiers()
                          : Qt::KeyboardModifiers((input.byte() & 31) << 25);
}

Qt::MouseButton someButton(FuzzInput& input)
{
    const int choice = input.below(8);
    return choice < 6 ? Qt::LeftButton : choice < 7 ? Qt::RightButton : Qt::MiddleButton;
}

QPoint somePoint(const QWidget& target, FuzzInput& input)
{
    if (!input.below(3))
        return target.rect().center();
    return {input.below(target.width() + 2) - 1, input.below(target.height() + 2) - 1};
}

QString someText(FuzzInput& input)
{
    constexpr const char* texts[] = {"1", "100", "99", "0", "a", "买入", "-", " ", "10000001", "5"};
    const int choice = input.below(int(std::size(texts)) + 2);
    return QString::fromUtf8(choice < int(std::size(texts)) ? QByteArray(texts[choice])
                                                            : input.bytes(12));
}

/// A pointer over a widget, which sends its events either way.
class Pointer {
public:
    Pointer(QWidget& target, FuzzInput& input)
        : m_target(&target)
        , m_at(somePoint(target, input))
        , m_held(modifiers(input))
        , m_direct(input.flag() || !target.window()->windowHandle())
    {
    }

    void send(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons state)
    {
        if (!m_target)
            return;
        const QPoint global = m_target->mapToGlobal(m_at);
        if (m_direct) {
            QMouseEvent event(type, m_at, global, button, state, m_held);
            QApplication::sendEvent(m_target, &event);
            return;
        }
        QWidget* const top = m_target->window();
        if (!top->windowHandle())
            return;
        qt_handleMouseEvent(top->windowHandle(), m_target->mapTo(top, m_at), global, state, button,
                            type, m_held, nextTime());
        QCoreApplication::processEvents();
    }

    /// To another place on the widget; it may be gone by now.
    void wander(FuzzInput& input)
    {
        if (m_target)
            m_at = somePoint(*m_target, input);
    }

private:
    QPointer<QWidget> m_target;
    QPoint m_at;
    Qt::KeyboardModifiers m_held;
    bool m_direct;
};

void sendKey(QWidget& target, FuzzInput& input, int key, const QString& text)
{
    const Qt::KeyboardModifiers held = modifiers(input);
    QPointer<QWidget> widget(&target);
    QWindow* const window = target.window()->windowHandle();
    if (window && input.flag()) {
        const QPointer<QWindow> guarded(window);
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            if (guarded)
                qt_handleKeyEvent(guarded, type, key, held, text, !input.below(16), 1);
            QCoreApplication::processEvents();
        }
        return;
    }
    for (const QEvent::Type type :
         {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, held, text, !input.below(16));
        if (widget)
            QApplication::sendEvent(widget, &event);
    }
}

std::unique_ptr<QMimeData> someData(FuzzInput& input)
{
    auto data = std::make_unique<QMimeData>();
    switch (input.below(6)) {
    case 0:
        data->setHtml(QStringLiteral("<b>") + someText(input) + QStringLiteral("</b>"));
        break;
    case 1:
        data->setUrls({QUrl(QStringLiteral("file:///") + someText(input))});
        break;
    case 2:
        data->setImageData(QImage(3, 3, QImage::Format_RGB32));
        break;
    case 3:
        data->setData(QStringLiteral("application/x-qabstractitemmodeldatalist"), input.bytes(24));
        break;
    default:
        data->setText(someText(input));
    }
    return data;
}

} // namespace

void Inputs::mouse(QWidget& target, FuzzInput& input)
{
    const Qt::MouseButton button = someButton(input);
    Pointer pointer(target, input);
    switch (input.below(5)) {
    case 0:
        pointer.send(QEvent::MouseMove, Qt::NoButton, input.flag() ? button : Qt::NoButton);
        break;
    case 1:
        pointer.send(QEvent::MouseButtonPress, button, button);
        break;
    case 2:
        pointer.send(QEvent::MouseButtonRelease, button, Qt::NoButton);
        break;
    case 3:
        pointer.send(QEvent::MouseButtonPress, button, button);
        pointer.send(QEvent::MouseButtonRelease, button, Qt::NoButton);
        pointer.send(QEvent::MouseButtonDblClick, button, button);
        pointer.send(QEvent::MouseButtonRelease, button, Qt::NoButton);
        break;
    default:
        pointer.send(QEvent::MouseButtonPress, button, button);
        for (int moves = input.below(4); moves > 0; --moves) {
            pointer.wander(input);
            pointer.send(QEvent::MouseMove, Qt::NoButton, button);
        }
        pointer.send(QEvent::MouseButtonRelease, button, Qt::NoButton);
    }
}

void Inputs::click(QWidget& target, FuzzInput& input)
{
    const Qt::MouseButton button = someButton(input);
    Pointer pointer(target, input);
    pointer.send(QEvent::MouseButtonPress, button, button);
    pointer.send(QEvent::MouseButtonRelease, button, Qt::NoButton);
}

void Inputs::hover(QWidget& target, FuzzInput& input)
{
    const QPoint at = somePoint(target, input);
    switch (input.below(5)) {
    case 0: {
        QEnterEvent event(at, at, target.mapToGlobal(at));
        QApplication::sendEvent(&target, &event);
        break;
    }
    case 1: {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(&target, &event);
        break;
    }
    case 2: {
        QHoverEvent event(QEvent::HoverMove, at, somePoint(target, input));
        QApplication::sendEvent(&target, &event);
        break;
    }
    case 3: {
        QHelpEvent event(input.flag() ? QEvent::ToolTip : QEvent::WhatsThis, at,
                         target.mapToGlobal(at));
        QApplication::sendEvent(&target, &event);
        break;
    }
    default:
        Pointer(target, input).send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
    }
}

void Inputs::wheel(QWidget& target, FuzzInput& input)
{
    constexpr int turns[] = {120, -120, 15, -15, 1200, -1200, 1, 0};
    const QPoint at = somePoint(target, input);
    const QPoint angle(input.below(4) ? 0 : turns[input.below(8)], turns[input.below(8)]);
    QWindow* const window = target.window()->windowHandle();
    const bool direct = input.flag() || !window;
    const QPoint local = direct ? at : target.mapTo(target.window(), at);
    QWheelEvent event(local, target.mapToGlobal(at), QPoint(), angle, Qt::NoButton,
                      modifiers(input), Qt::ScrollPhase(input.below(5)), input.flag());
    if (direct)
        QApplication::sendEvent(&target, &event);
    else
        QApplication::sendEvent(window, &event);
}

void Inputs::key(QWidget& target, FuzzInput& input)
{
    constexpr int keys[]
        = {Qt::Key_0,       Qt::Key_1,      Qt::Key_5,     Qt::Key_9,    Qt::Key_A,
           Qt::Key_Z,       Qt::Key_F1,     Qt::Key_F5,    Qt::Key_F12,  Qt::Key_Tab,
           Qt::Key_Return,  Qt::Key_Space,  Qt::Key_Up,    Qt::Key_Down, Qt::Key_Left,
           Qt::Key_Right,   Qt::Key_Escape, Qt::Key_End,   Qt::Key_Alt,  Qt::Key_PageUp,
           Qt::Key_Home,    Qt::Key_Delete, Qt::Key_Shift, Qt::Key_Meta, Qt::Key_Control,
           Qt::Key_F4,      Qt::Key_F10,    Qt::Key_Menu,  Qt::Key_Plus, Qt::Key_Backspace,
           Qt::Key_S,       Qt::Key_V,      Qt::Key_Comma, Qt::Key_X,    Qt::Key_PageDown,
           Qt::Key_unknown, Qt::Key_Backtab};
    const int choice = input.below(int(std::size(keys)) + 1);
    const int key = choice < int(std::size(keys)) ? keys[choice] : input.below(0x7fff);
    sendKey(target, input, key,
            key >= Qt::Key_Space && key <= Qt::Key_Z ? QString(QChar(key)) : QString());
}

void Inputs::text(QWidget& target, FuzzInput& input)
{
    const QPointer<QWidget> guarded(&target);
    for (const QChar character : someText(input)) {
        if (guarded)
            sendKey(*guarded, input, 0, QString(character));
    }
}

void Inputs::inputMethod(QWidget& target, FuzzInput& input)
{
    if (!input.below(3)) {
        QInputMethodQueryEvent query(Qt::ImQueryAll);
        QApplication::sendEvent(&target, &query);
        return;
    }
    if (!input.below(6)) {
        if (input.flag())
            QGuiApplication::inputMethod()->commit();
        else
            QGuiApplication::inputMethod()->reset();
        return;
    }
    QList<QInputMethodEvent::Attribute> attributes;
    for (int left = input.below(4); left > 0; --left) {
        const auto kind = QInputMethodEvent::AttributeType(input.below(6));
        QTextCharFormat format;
        format.setFontUnderline(true);
        attributes << QInputMethodEvent::Attribute(
            kind, input.below(12) - 2, input.below(12) - 2,
            kind == QInputMethodEvent::TextFormat ? QVariant(format) : QVariant());
    }
    QInputMethodEvent event(input.flag() ? someText(input) : QString(), attributes);
    if (input.flag())
        event.setCommitString(someText(input), input.below(8) - 4, input.below(4));
    QApplication::sendEvent(&target, &event);
}

void Inputs::contextMenu(QWidget& target, FuzzInput& input)
{
    // The menu key is for what has the focus.
    const bool byKey = input.flag();
    QWidget* const focused = QApplication::focusWidget();
    QWidget& asked = byKey && focused && focused->window() == target.window() ? *focused : target;
    const QPoint at = somePoint(asked, input);
    QContextMenuEvent event(byKey ? QContextMenuEvent::Keyboard : QContextMenuEvent::Mouse, at,
                            asked.mapToGlobal(at), modifiers(input));
    QApplication::sendEvent(&asked, &event);
}

void Inputs::drag(QWidget& target, FuzzInput& input)
{
    const std::unique_ptr<QMimeData> data = someData(input);
    const QPointer<QWidget> guarded(&target);
    const Qt::DropActions actions = input.flag() ? Qt::CopyAction | Qt::MoveAction : Qt::CopyAction;
    QDragEnterEvent enter(somePoint(target, input), actions, data.get(), Qt::LeftButton,
                          modifiers(input));
    QApplication::sendEvent(&target, &enter);
    for (int moves = input.below(4); moves > 0 && guarded; --moves) {
        QDragMoveEvent move(somePoint(target, input), actions, data.get(), Qt::LeftButton,
                            modifiers(input));
        QApplication::sendEvent(guarded, &move);
    }
    if (!guarded)
        return;
    if (!input.below(4)) {
        QDragLeaveEvent leave;
        QApplication::sendEvent(guarded, &leave);
        return;
    }
    QDropEvent drop(somePoint(target, input), actions, data.get(), Qt::LeftButton,
                    modifiers(input));
    QApplication::sendEvent(guarded, &drop);
}

void Inputs::endDrag(QWidget& target, FuzzInput& input)
{
    const QPointer<QWindow> window(target.window()->windowHandle());
    if (!window)
        return;
    if (!input.below(4)) {
        qt_handleKeyEvent(window, QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(),
                          false, 1);
        return;
    }
    const QPoint at = target.mapTo(target.window(), somePoint(target, input));
    for (const QEvent::Type type : {QEvent::MouseMove, QEvent::MouseButtonRelease}) {
        const bool moves = type == QEvent::MouseMove;
        if (window)
            qt_handleMouseEvent(
                window, at, window->mapToGlobal(at), moves ? Qt::LeftButton : Qt::NoButton,
                moves ? Qt::NoButton : Qt::LeftButton, type, Qt::NoModifier, nextTime());
    }
}

void Inputs::focus(QWidget& target, FuzzInput& input)
{
    if (input.below(4))
        target.setFocus(Qt::FocusReason(input.below(8)));
    else if (input.flag())
        target.clearFocus();
    else
        target.window()->activateWindow();
}

void Inputs::clipboard(QWidget&, FuzzInput& input)
{
    QApplication::clipboard()->setMimeData(someData(input).release());
}
