#include "support/TestMain.h"

#include <QMetaObject>

#include <clocale>

namespace TestSupport {

void prepareEnvironment(const QString& home)
{
    qputenv("HOME", home.toLocal8Bit());
    qputenv("CFFIXED_USER_HOME", home.toLocal8Bit()); // what macOS goes by instead
    qunsetenv("XDG_CONFIG_HOME");
    qunsetenv("XDG_DATA_HOME");
    qputenv("LC_ALL", "C.UTF-8");
    std::setlocale(LC_ALL, "C.UTF-8");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setOrganizationDomain(QStringLiteral("kivotrade.com"));
    QCoreApplication::setApplicationName(QStringLiteral("tradeclient"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.3"));
}

void requireTests(const QMetaObject& testClass)
{
    if (testClass.methodCount() == testClass.methodOffset())
        qFatal("%s has no test functions", testClass.className());
}

} // namespace TestSupport

// The offscreen platform plugin leaves its screen behind when the application ends.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:libqoffscreen"; }
