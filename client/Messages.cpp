#include "client/Messages.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

int Messages::print(const QByteArray& text)
{
    if (std::fwrite(text.constData(), 1, size_t(text.size()), stdout) == size_t(text.size())
        && std::fflush(stdout) == 0)
        return EXIT_SUCCESS;
    return complain(
        QCoreApplication::translate("Messages", "无法写入标准输出：%1").arg(qt_error_string()));
}

int Messages::complain(const QString& message)
{
    std::fprintf(stderr, "tradeclient: %s\n", qPrintable(message));
    return EXIT_FAILURE;
}

void Messages::tell(QMessageBox::Icon icon, const QString& message)
{
    complain(message);
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return;
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal"))
        return;
    QMessageBox box(icon, QCoreApplication::translate("Messages", "交易客户端"), message);
    box.exec();
}

int Messages::fail(const QString& message)
{
    tell(QMessageBox::Critical, message);
    return EXIT_FAILURE;
}
