#include "client/ExpectedHome.h"
#include "support/TestMain.h"

/// The same on macOS, whose source is plain C++ and runs anywhere.
class tst_ExpectedHomeMac : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void chosenHome();
    void homeOfTheUser();
    void homeInTheSandbox();
};

void tst_ExpectedHomeMac::init()
{
    qunsetenv("APP_SANDBOX_CONTAINER_ID");
    qunsetenv("CFFIXED_USER_HOME");
    qputenv("HOME", "/elsewhere");
}

void tst_ExpectedHomeMac::chosenHome()
{
    qputenv("CFFIXED_USER_HOME", "/Users/u");
    QCOMPARE(ExpectedHome::path(), QStringLiteral("/Users/u/.com.kivotrade.tradeclient"));
}

void tst_ExpectedHomeMac::homeOfTheUser()
{
    const QString path = ExpectedHome::path();
    QVERIFY2(path.startsWith(QLatin1Char('/')), qPrintable(path));
    QVERIFY2(path.endsWith(QStringLiteral("/.com.kivotrade.tradeclient")), qPrintable(path));
    QVERIFY2(!path.startsWith(QStringLiteral("/elsewhere")), qPrintable(path));
}

void tst_ExpectedHomeMac::homeInTheSandbox()
{
    qputenv("APP_SANDBOX_CONTAINER_ID", "com.kivotrade.tradeclient");
    qputenv("HOME", "/Users/u/Library/Containers/com.kivotrade.tradeclient/Data");
    QCOMPARE(ExpectedHome::path(),
             QStringLiteral("/Users/u/Library/Containers/com.kivotrade.tradeclient/Data"));
}

TRADECONFIG_TEST_MAIN(tst_ExpectedHomeMac)
#include "tst_ExpectedHomeMac.moc"
