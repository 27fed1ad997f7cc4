#pragma once

#include <QStringList>

/// Collects the lines of the debug log while it lives, instead of printing them. One at a time.
class MessageCapture {
public:
    MessageCapture();
    ~MessageCapture();
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;

    QStringList lines() const;
    /// How many lines hold @p text.
    int count(const QString& text) const;

private:
    QtMessageHandler m_previous;
};
