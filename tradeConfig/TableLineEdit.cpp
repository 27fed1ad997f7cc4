#include "tradeConfig/TableLineEdit.h"

#include "tradeConfig/ReadableColour.h"
#include "tradeConfig/TableLineEditAccessible.h"

#include <QContextMenuEvent>
#include <QDebug>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPainter>

CTableLineEdit::CTableLineEdit(int tableRow, QWidget* parent)
    : QLineEdit(parent)
    , row(tableRow)
{
    // First of all: what follows is told, and who is told asks for the interface.
    TableLineEditAccessible::install();
    QFont cellFont = font();
    cellFont.setPointSize(11);
    setFont(cellFont);
    // Shuts out input methods, paste, drops and the middle button; setText still works.
    setReadOnly(true);
    connect(this, &QLineEdit::editingFinished, this, &CTableLineEdit::EditFinished);
}

void CTableLineEdit::EditFinished() { }

bool CTableLineEdit::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // Otherwise the window's shortcuts would take their keys before this editor sees them.
        const auto* const keyEvent = static_cast<QKeyEvent*>(event);
        const bool movesFocus
            = (keyEvent->key() == Qt::Key_Tab || keyEvent->key() == Qt::Key_Backtab)
            && !(keyEvent->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
        event->setAccepted(!movesFocus);
        return true;
    }
    return QLineEdit::event(event);
}

void CTableLineEdit::contextMenuEvent(QContextMenuEvent* event)
{
    // The window system asks for a menu before it sends the Menu key: the menu would take the key.
    if (event->reason() != QContextMenuEvent::Keyboard)
        QLineEdit::contextMenuEvent(event);
}

void CTableLineEdit::focusOutEvent(QFocusEvent* event)
{
    m_heldKeys.forget();
    QLineEdit::focusOutEvent(event);
}

// A style shows the focus on the frame, which a table's cells are without, or by the cursor, which
// a text has only where it can be written.
void CTableLineEdit::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (!hasFocus())
        return;
    constexpr int width = 2;
    QPainter painter(this);
    painter.setPen(QPen(ReadableColour::focusRing(palette()), width, Qt::SolidLine, Qt::SquareCap,
                        Qt::MiterJoin));
    painter.drawRect(rect().adjusted(width / 2, width / 2, -width / 2, -width / 2));
}

void CTableLineEdit::keyPressEvent(QKeyEvent* event)
{
    int key = event->key();
    if (key == Qt::Key_unknown) {
        qDebug("Unknown key from a macro probably");
        return;
    }
    if (key == Qt::Key_Control || key == Qt::Key_Shift || key == Qt::Key_Alt || key == Qt::Key_Meta)
        return;
    if (!m_heldKeys.isPressedHere(*event))
        return;

    const Qt::KeyboardModifiers modifiers = event->modifiers();
    if (modifiers & Qt::ShiftModifier)
        key += int(Qt::SHIFT);
    if (modifiers & Qt::ControlModifier)
        key += int(Qt::CTRL);
    if (modifiers & Qt::AltModifier)
        key += int(Qt::ALT);
    if (modifiers & Qt::MetaModifier)
        return;

    setText(QKeySequence(key).toString(QKeySequence::NativeText));
    Q_EMIT signal_editFinished(row, text());
}

void CTableLineEdit::keyReleaseEvent(QKeyEvent* event)
{
    m_heldKeys.noteRelease(*event);
    QLineEdit::keyReleaseEvent(event);
}
