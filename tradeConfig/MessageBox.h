#pragma once

#include "tradeConfig/HeldKeys.h"

#include "ui_MessageBox.h"

#include <QDialog>
#include <QMessageBox>
#include <QString>

/**
 * The module's frameless message box: caption bar, icon, message and up to six buttons.
 *
 * The static functions build a box, run it modally and return the QMessageBox::StandardButton
 * of the pressed button, or QDialog::Rejected (0) when the box was closed in another way: through
 * its caption bar or with Escape. A key that is held since before the box came answers nothing.
 * Where no title is given it is the application's name.
 */
class CMessageBox : public QDialog, public Ui_CMessageBox {
    Q_OBJECT

public:
    /// With a @p timeoutSeconds of 1 or more the first button counts down, and the box closes
    /// with Ok one second after it showed 1. Any other value: no countdown. At most six
    /// @p buttons; they stand in an order of their own.
    CMessageBox(QWidget* parent, QMessageBox::Icon iconKind, const QString& text,
                const QString& title, QMessageBox::StandardButtons buttons, int timeoutSeconds);

    static int message(QWidget* parent, QMessageBox::Icon iconKind, const QString& text,
                       QMessageBox::StandardButtons buttons);
    static int message(QWidget* parent, QMessageBox::Icon iconKind, const QString& text,
                       const QString& title, QMessageBox::StandardButtons buttons);

    /// A box with the button Ok that counts down from @p seconds.
    static int timeout(QWidget* parent, QMessageBox::Icon iconKind, const QString& text,
                       int seconds);

    /// A box with the buttons Yes and No.
    static int question(QWidget* parent, QMessageBox::Icon iconKind, const QString& text);

public Q_SLOTS:
    /// Ends the dialog with @p button as its result.
    void onButtonClick(QMessageBox::StandardButton button);

protected:
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    QPushButton* btns[6];
    int countdown; ///< seconds that are still to be shown

private:
    void showIcon(QMessageBox::Icon iconKind);
    void assignButtons(QMessageBox::StandardButtons buttons);
    void showCountdown();

    HeldKeys m_heldKeys;
};
