#pragma once

#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <functional>

/**
 * Answers the next modal window that comes up while this object lives.
 *
 * The current test fails in the destructor if no window came, so a box that silently stopped
 * appearing cannot go unnoticed. Make it before the call that blocks:
 *
 *   const ModalAnswer answer = ModalAnswer::pressing(QMessageBox::Ok);
 *   dialog.WriteAllParm();
 *   QCOMPARE(answer.text(), QStringLiteral("..."));
 */
class ModalAnswer {
public:
    using Action = std::function<void(QWidget* window)>;

    explicit ModalAnswer(Action action);
    ~ModalAnswer();
    ModalAnswer(const ModalAnswer&) = delete;
    ModalAnswer& operator=(const ModalAnswer&) = delete;

    /// Clicks the button whose text is @p buttonText in any message box of the application.
    static ModalAnswer clicking(const QString& buttonText);

    /// Presses a standard button of a QMessageBox.
    static ModalAnswer pressing(QMessageBox::StandardButton button);

    bool came() const { return m_came; }
    QString title() const { return m_title; }
    /// The message of the box: a QMessageBox's text, or the text of the label "msg".
    QString text() const { return m_text; }

private:
    void look();

    Action m_action;
    QTimer m_timer;
    bool m_came = false;
    QString m_title;
    QString m_text;
};
