#include "FatalMessage.h"

#include <QByteArray>
#include <QtGlobal>

#include <sys/wait.h>
#include <unistd.h>

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
