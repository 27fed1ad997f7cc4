#include "client/SettingsWindow.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>

SettingsWindow::SettingsWindow(QWidget* dialog, QWidget* parent)
    : QScrollArea(parent)
    , m_formSize(dialog->size().expandedTo(dialog->minimumSizeHint()))
{
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint
                   | Qt::WindowCloseButtonHint);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("设置"));
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    dialog->setMinimumSize(m_formSize);
    setWidgetResizable(true);
    setWidget(dialog);
    setMaximumSize(m_formSize);
    resize(m_formSize);
}

void SettingsWindow::closeEvent(QCloseEvent* event)
{
    QScrollArea::closeEvent(event);
    if (event->isAccepted())
        Q_EMIT closed();
}

bool SettingsWindow::focusNextPrevChild(bool next)
{
    if (!QScrollArea::focusNextPrevChild(next))
        return false;
    // The base class is content when it shows where a text cursor would stand.
    constexpr int margin = 8;
    const QWidget* const stop = focusWidget();
    const QPoint middle = stop->mapTo(widget(), stop->rect().center());
    ensureVisible(middle.x(), middle.y(), stop->width() / 2 + margin, stop->height() / 2 + margin);
    return true;
}

void SettingsWindow::keyPressEvent(QKeyEvent* event)
{
    // A key still held after it closed a list or a box must not take the window along.
    if (event->matches(QKeySequence::Cancel) && m_heldKeys.isPressedHere(*event))
        close();
    else
        QScrollArea::keyPressEvent(event);
}

void SettingsWindow::keyReleaseEvent(QKeyEvent* event)
{
    m_heldKeys.noteRelease(*event);
    QScrollArea::keyReleaseEvent(event);
}

void SettingsWindow::showEvent(QShowEvent* event)
{
    QScrollArea::showEvent(event);
    const QRect available = screen()->availableGeometry();
    const QMargins frame = windowHandle() ? windowHandle()->frameMargins() : QMargins();
    // Before the window manager has framed the window, the usual frame.
    const QSize usualFrame(4, 32);
    const QSize around
        = usualFrame.expandedTo({frame.left() + frame.right(), frame.top() + frame.bottom()});
    const QSize room = available.size() - around;
    if (m_formSize.width() <= room.width() && m_formSize.height() <= room.height())
        return;
    // A scroll bar for one direction takes room from the other.
    const int bar = verticalScrollBar()->sizeHint().width();
    setMaximumSize(m_formSize + QSize(bar, bar));
    resize((m_formSize + QSize(bar, bar)).boundedTo(room));
    move(available.topLeft());
}

bool SettingsWindow::viewportEvent(QEvent* event)
{
    // The dialog closes its parent, which is the viewport: take the whole window along.
    if (event->type() == QEvent::Close) {
        event->ignore();
        close();
        return true;
    }
    return QScrollArea::viewportEvent(event);
}
