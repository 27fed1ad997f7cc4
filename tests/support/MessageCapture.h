#pragma once

#include <QStringList>

#include <functional>

/// The toolkit's log while it lives, collected instead of printed. One that is made later takes
/// the lines until it goes.
class MessageCapture {
public:
    struct Line {
        QtMsgType type;
        QString text;
        QString file;
        QString function;
    };

    MessageCapture();
    ~MessageCapture();
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;

    const QList<Line>& lines() const { return m_lines; }
    QStringList texts() const;
    QStringList texts(QtMsgType type) const;
    /// How many lines hold @p part.
    int count(const QString& part) const { return texts().filter(part).size(); }

private:
    static void take(QtMsgType type, const QMessageLogContext& context, const QString& text);

    static const MessageCapture* s_latest;

    mutable QList<Line> m_lines; // a test has no business with it but to read
    const MessageCapture* const m_outer;
    const QtMessageHandler m_previous;
};

namespace TestSupport {

/// What the toolkit reports when @p action ends the process with a fatal message, for example a
/// failed assertion; empty if it does not. The action runs in a copy of this process.
QString fatalMessage(const std::function<void()>& action);

} // namespace TestSupport
