#include "client/DataDirectory.h"
#include "client/SkinChoice.h"
#include "support/Files.h"
#include "support/TestMain.h"

/// What the client keeps of the user's choice of a skin.
class tst_SkinChoice : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsAName_data();
    void keepsAName();
    void takesInterfaceSettingsAlong();
    void survivesASenselessFile();
};

void tst_SkinChoice::keepsAName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << QStringLiteral("dark");
    QTest::newRow("Chinese") << QStringLiteral("夜间 2");
    QTest::newRow("signs") << QStringLiteral("a=b, \"c\" \\x41 %20");
}

void tst_SkinChoice::keepsAName()
{
    QFETCH(const QString, name);
    const QTemporaryDir home;
    const DataDirectory directory(home.path());
    QCOMPARE(SkinChoice::read(directory), QString());
    QVERIFY2(QDir(home.path()).isEmpty(), "reading makes nothing");
    SkinChoice::keep(directory, QStringLiteral("light"));
    SkinChoice::keep(directory, name);
    QCOMPARE(SkinChoice::read(directory), name);
    QVERIFY(QFileInfo::exists(home.filePath(QStringLiteral("config/client.ini"))));
}

void tst_SkinChoice::takesInterfaceSettingsAlong()
{
    const QTemporaryDir home;
    const DataDirectory directory(home.path());
    QFile early(home.filePath(QStringLiteral("system_settings.ini")));
    QVERIFY(early.open(QIODevice::WriteOnly));
    QCOMPARE(early.write("[UI]\nscale=150\n"), qint64(15));
    early.close();
    SkinChoice::keep(directory, QStringLiteral("dark"));
    QCOMPARE(QFileInfo(home.filePath(QStringLiteral("config/system_settings.ini"))).size(),
             qint64(15));
}

void tst_SkinChoice::survivesASenselessFile()
{
    const QTemporaryDir home;
    const DataDirectory directory(home.path());
    writeFile(home.filePath(QStringLiteral("config/client.ini")),
              "[View]\nskin=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xf0zz)\n");
    QCOMPARE(SkinChoice::read(directory), QString());
    SkinChoice::keep(directory, QStringLiteral("dark"));
    QCOMPARE(SkinChoice::read(directory), QStringLiteral("dark"));
}

TRADECONFIG_TEST_MAIN(tst_SkinChoice)
#include "tst_SkinChoice.moc"
