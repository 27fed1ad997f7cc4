#include "support/ModalAnswer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QtTest>

ModalAnswer::ModalAnswer(Action action)
    : m_action(std::move(action))
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
    m_timer.start(1);
}

ModalAnswer::~ModalAnswer()
{
    if (!m_came)
        QTest::qFail("the expected modal window never came", __FILE__, __LINE__);
}

void ModalAnswer::look()
{
    QWidget* const window = QApplication::activeModalWidget();
    if (!window || !window->isVisible())
        return;
    m_timer.stop();
    m_came = true;
    m_title = window->windowTitle();
    if (const auto* box = qobject_cast<QMessageBox*>(window))
        m_text = box->text();
    else if (const auto* label = window->findChild<QLabel*>(QStringLiteral("msg")))
        m_text = label->text();
    m_action(window);
}

ModalAnswer ModalAnswer::clicking(const QString& buttonText)
{
    return ModalAnswer([buttonText](QWidget* window) {
        for (auto* button : window->findChildren<QAbstractButton*>()) {
            if (button->isVisible() && button->text() == buttonText) {
                button->click();
                return;
            }
        }
        QTest::qFail("the modal window has no such button", __FILE__, __LINE__);
        window->close();
    });
}

ModalAnswer ModalAnswer::pressing(QMessageBox::StandardButton button)
{
    return ModalAnswer([button](QWidget* window) {
        auto* const box = qobject_cast<QMessageBox*>(window);
        QAbstractButton* const found = box ? box->button(button) : nullptr;
        if (found) {
            found->click();
            return;
        }
        QTest::qFail("the modal window has no such standard button", __FILE__, __LINE__);
        window->close();
    });
}
