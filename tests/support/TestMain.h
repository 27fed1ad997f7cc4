#pragma once

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest>

namespace TestSupport {

/// Offscreen, UTF-8, and a home directory of this process's own. Call before QApplication.
void prepareEnvironment(const QString& home);

/// Ends the program if a test class has no test functions: it would pass.
void requireTests(const QMetaObject& testClass);

} // namespace TestSupport

/// QSKIP: clang objects to leaving out what follows the reason.
#define TEST_SKIP(reason) QSKIP(reason, )

/// main() of a test: prepared environment, application, one test class.
#define TRADECONFIG_TEST_MAIN(TestClass)                                                           \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        const QTemporaryDir home;                                                                  \
        TestSupport::prepareEnvironment(home.path());                                              \
        const QApplication application(argc, argv);                                                \
        TestClass test;                                                                            \
        TestSupport::requireTests(*test.metaObject());                                             \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
