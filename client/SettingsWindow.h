#pragma once

#include "tradeConfig/HeldKeys.h"

#include <QScrollArea>

/**
 * A window around the module's dialog, which has a fixed layout: on a screen that is too small
 * for it at the chosen scale, the dialog scrolls. The window closes when the dialog does, and
 * deletes itself and the dialog. Esc closes it where no control wants the key for itself.
 *
 * The window is no stop of Tab: the stops are the dialog's.
 */
class SettingsWindow : public QScrollArea {
    Q_OBJECT

public:
    /// Takes ownership of @p dialog.
    SettingsWindow(QWidget* dialog, QWidget* parent);

Q_SIGNALS:
    /// After a confirm, a cancel, or the window's own close button.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QSize m_formSize;
    HeldKeys m_heldKeys;
};
