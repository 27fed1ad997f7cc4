#include "fuzz/FuzzSetup.h"

#include "fuzz/FuzzInput.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <clocale>
#include <cstdio>

void FuzzInput::fail(const char* condition, const char* file, int line)
{
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, condition);
    std::abort();
}

const QString& FuzzSetup::application()
{
    // Lives as long as the process: the fuzzer's main() knows no end.
    static const QString home = [] {
        QTemporaryDir directory;
        directory.setAutoRemove(false);
        MUST(directory.isValid());
        qputenv("HOME", QFile::encodeName(directory.path()));
        qputenv("LC_ALL", "C.UTF-8");
        qputenv("QT_QPA_PLATFORM", "offscreen");
        std::setlocale(LC_ALL, "C.UTF-8");
        QCoreApplication::setOrganizationDomain(QStringLiteral("kivotrade.com"));
        QCoreApplication::setApplicationName(QStringLiteral("tradeclient"));
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            if (type == QtFatalMsg) {
                std::fprintf(stderr, "%s\n", qPrintable(text));
                std::abort();
            }
        });
        static int count = 1;
        static char name[] = "fuzz";
        static char* arguments[] = {name, nullptr};
        new QApplication(count, arguments);
        return directory.path();
    }();
    return home;
}
