#pragma once

#include "tradeConfig/ImageButton.h"
#include "tradeConfig/MessageBox.h"
#include "tradeConfig/NavWidget.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/TipLabel.h"

#include <QWidget>

#include <functional>
#include <memory>

/// A switch bar that stands still in a given state, whatever the mouse does.
class HeldSwitchBar : public CSwitchEx {
    Q_OBJECT

public:
    HeldSwitchBar(Qt::Orientation barOrientation, QSize size, QWidget* parent = nullptr);
    ~HeldSwitchBar() override { ClearAll(); }

    /// Shows @p item as if the mouse were over it.
    void holdHover(SwitchItem* item);

    /// Scrolls as clicks on the forward scroll button do.
    void scrollForward(int clicks);
};

/// A navigation list that stands still in a given state.
class HeldNavList : public CNavWidget {
    Q_OBJECT

public:
    explicit HeldNavList(const QStringList& entries, QWidget* parent = nullptr);

    void hold(int selectedIndex, int hoverIndex);
};

/// An image button that stands still in a given state.
class HeldImageButton : public CImageButton {
    Q_OBJECT

public:
    explicit HeldImageButton(QWidget* parent = nullptr);

    void hold(bool whileHovered, bool whilePressed);
};

/// A message box that is looked at, not answered: it is laid out as when it is shown, and its
/// countdown stands still.
class HeldMessageBox : public CMessageBox {
    Q_OBJECT

public:
    using CMessageBox::CMessageBox;

    /// Takes the size that the box has on the screen.
    void settle();

protected:
    void timerEvent(QTimerEvent*) override { }
};

/// Starts the fade of @p tip and holds it @p milliseconds after its start.
void holdFade(CTipLabel& tip, int milliseconds);

/**
 * A picture, always up to date, of a window that is not shown.
 *
 * Caption bars and message boxes go by the flags of their window, so they are shown inside a
 * window of their own instead of being taken out of it.
 */
class WindowPreview : public QWidget {
    Q_OBJECT

public:
    explicit WindowPreview(std::unique_ptr<QWidget> shown, QWidget* parent = nullptr);
    ~WindowPreview() override;

    const QWidget* shown() const { return m_shown.get(); }

    /// What a click does; nothing until it is set.
    void setAction(std::function<void()> action);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::unique_ptr<QWidget> m_shown;
    std::function<void()> m_action;
};
