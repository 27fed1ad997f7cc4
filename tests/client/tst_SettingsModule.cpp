#include "client/DataDirectory.h"
#include "client/SettingsModule.h"
#include "support/TestMain.h"

/// What the client takes from the module as it is loaded.
class tst_SettingsModule : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void homeThatFillsItsBuffer();
    void homeInABuffer_data();
    void homeInABuffer();
};

void tst_SettingsModule::homeThatFillsItsBuffer()
{
    SettingsModule module;
    QCOMPARE(module.load(QStringLiteral(FULL_HOME_MODULE)), QString());
    QCOMPARE(module.homePath(), QLatin1Char('/') + QString(511, QLatin1Char('x')));
}

void tst_SettingsModule::homeInABuffer_data()
{
    QTest::addColumn<QByteArray>("buffer");
    QTest::addColumn<QString>("home");
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("short") << QByteArray("/home") << QStringLiteral("/home");
    QTest::newRow("Chinese") << QByteArray("/家") << QStringLiteral("/家");
    QTest::newRow("511") << QByteArray(511, 'x') << QString(511, QLatin1Char('x'));
    QTest::newRow("512") << QByteArray(512, 'x') << QString(512, QLatin1Char('x'));
    QTest::newRow("513") << QByteArray(513, 'x') << QString(512, QLatin1Char('x'));
}

void tst_SettingsModule::homeInABuffer()
{
    QFETCH(const QByteArray, buffer);
    QTEST(DataDirectory::homeIn(buffer.constData()), "home");
}

TRADECONFIG_TEST_MAIN(tst_SettingsModule)
#include "tst_SettingsModule.moc"
