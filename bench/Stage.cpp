#include "bench/Stage.h"

#include "tradeConfig/platform/HostPlatform.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>

#include <clocale>

namespace Stage {

Environment::Environment()
{
    qputenv("HOME", m_home.path().toLocal8Bit());
    qunsetenv("XDG_CONFIG_HOME");
    qunsetenv("XDG_DATA_HOME");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_HASH_SEED", "0");
    qputenv("LC_ALL", "C.UTF-8");
    std::setlocale(LC_ALL, "C.UTF-8");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QCoreApplication::setOrganizationDomain(QStringLiteral("kivotrade.com"));
    QCoreApplication::setApplicationName(QStringLiteral("benchmark"));

    QDir data(QString::fromUtf8(ApplicationHomePath()));
    data.mkpath(QStringLiteral("config"));
    QFile settings(data.absoluteFilePath(QStringLiteral("config/system_settings.ini")));
    if (settings.open(QIODevice::WriteOnly))
        settings.write("[UI]\nlanguage=zh_CN\nscale=125\n");
}

void open(QWidget& window)
{
    window.show();
    settle();
}

void settle() { QCoreApplication::processEvents(); }

void click(QWidget& widget, QPoint at)
{
    const QPoint global = widget.mapToGlobal(at);
    QMouseEvent move(QEvent::MouseMove, at, global, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
    QMouseEvent down(QEvent::MouseButtonPress, at, global, Qt::LeftButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &down);
    QMouseEvent up(QEvent::MouseButtonRelease, at, global, Qt::LeftButton, Qt::NoButton,
                   Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &up);
}

void press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace Stage
