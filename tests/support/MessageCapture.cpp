#include "support/MessageCapture.h"

#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

const MessageCapture* MessageCapture::s_latest = nullptr;

MessageCapture::MessageCapture()
    : m_outer(std::exchange(s_latest, this))
    , m_previous(qInstallMessageHandler(take))
{
}

MessageCapture::~MessageCapture()
{
    qInstallMessageHandler(m_previous);
    s_latest = m_outer;
}

void MessageCapture::take(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    s_latest->m_lines.append(
        {type, text, QString::fromUtf8(context.file), QString::fromUtf8(context.function)});
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qUtf8Printable(text)); // the process ends before it is asked
}

QStringList MessageCapture::texts() const
{
    QStringList all;
    for (const Line& line : m_lines)
        all << line.text;
    return all;
}

QStringList MessageCapture::texts(QtMsgType type) const
{
    QStringList some;
    for (const Line& line : m_lines) {
        if (line.type == type)
            some << line.text;
    }
    return some;
}

namespace {

int reportTo = -1;

void report(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type != QtFatalMsg)
        return;
    const QByteArray bytes = message.toUtf8();
    const auto written = write(reportTo, bytes.constData(), std::size_t(bytes.size()));
    _exit(written == bytes.size() ? 1 : 2);
}

} // namespace

QString TestSupport::fatalMessage(const std::function<void()>& action)
{
    int ends[2];
    if (pipe(ends) != 0)
        return {};
    const pid_t child = fork();
    if (child == 0) {
        reportTo = ends[1];
        qInstallMessageHandler(report);
        action();
        _exit(0);
    }
    close(ends[1]);
    QByteArray text;
    char buffer[1024];
    for (ssize_t count = 0; (count = read(ends[0], buffer, sizeof buffer)) > 0;)
        text.append(buffer, int(count));
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return QString::fromUtf8(text);
}
