#include "support/Files.h"
#include "support/TestMain.h"
#include "support/VersionTable.h"
#include "tradeConfig/platform/HostPlatform.h"
#include "tradeConfig/platform/HostPlatform_unix.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QWidget>

#include <climits>
#include <cstring>
#include <unistd.h>

/// The helpers as a Linux user meets them.
class tst_HostPlatformUnix : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void directoryThere();
    void directoryCreatedWithParents();
    void fileInTheWay();
    void filesInTheWayTwice();
    void danglingLinkInTheWay();
    void linkToDirectory();
    void creationFails();
    void creationFailsTwice();
    void noDomain();
    void slashesAfterHome();
    void utf8Names();
    void percentSigns();
    void noHome_data();
    void noHome();
    void noHomeNorCurrentDirectory();
    void lengths_data();
    void lengths();

    void identifier_data();
    void identifier();
    void machineIdentifier_data();
    void machineIdentifier();
    void withheldFromTheUser();
    void terminatedCopy();
    void idsOfThisMachine();
    void versionText();
    void versionNumber_data();
    void versionNumber();
    void titleBarStays();

private:
    QJsonObject probe(const QString& domain = QStringLiteral("kivotrade.com"),
                      const QString& name = QStringLiteral("tradeclient"),
                      const QStringList& more = {});
    QByteArray homePath(const QJsonObject& answers) const;
    QString path(const QString& name) const;

    QScopedPointer<QTemporaryDir> m_scratch;
    QProcessEnvironment m_environment;
};

/// Every case has a fresh directory with a home and a current directory in it.
void tst_HostPlatformUnix::init()
{
    m_scratch.reset(new QTemporaryDir);
    QVERIFY(m_scratch->isValid());
    QVERIFY(QDir(m_scratch->path()).mkpath(QStringLiteral("cwd")));
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.insert(QStringLiteral("HOME"), path(QStringLiteral("home")));
}

QJsonObject tst_HostPlatformUnix::probe(const QString& domain, const QString& name,
                                        const QStringList& more)
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory(path(QStringLiteral("cwd")));
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/hostPlatformProbe"),
                  QStringList{domain, name} + more);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        return {};
    const QJsonObject answers = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    // Whatever the case: the second call gives the first answer and asks nothing again.
    const bool kept = answers.value(QStringLiteral("samePointer")).toBool()
        && answers.value(QStringLiteral("sameText")).toBool()
        && answers.value(QStringLiteral("sameIdPointers")).toBool();
    return kept ? answers : QJsonObject{};
}

QByteArray tst_HostPlatformUnix::homePath(const QJsonObject& answers) const
{
    return QByteArray::fromHex(answers.value(QStringLiteral("home")).toString().toLatin1());
}

QString tst_HostPlatformUnix::path(const QString& name) const { return m_scratch->filePath(name); }

void tst_HostPlatformUnix::directoryThere()
{
    const QString expected = path(QStringLiteral("home/.com.kivotrade.tradeclient"));
    writeFile(expected + QStringLiteral("/kept"), "in the way");
    const QJsonObject answers = probe();
    QCOMPARE(homePath(answers), expected.toUtf8());
    QVERIFY(QFile::exists(expected + QStringLiteral("/kept")));
    QVERIFY(QDir(path(QStringLiteral("cwd"))).isEmpty());
}

void tst_HostPlatformUnix::directoryCreatedWithParents()
{
    m_environment.insert(QStringLiteral("HOME"), path(QStringLiteral("not/there/yet")));
    const QJsonObject answers = probe();
    QCOMPARE(homePath(answers),
             path(QStringLiteral("not/there/yet/.com.kivotrade.tradeclient")).toUtf8());
    QVERIFY(answers.value(QStringLiteral("isDirectory")).toBool());
}

void tst_HostPlatformUnix::fileInTheWay()
{
    const QString first = path(QStringLiteral("home/.com.kivotrade.tradeclient"));
    writeFile(first, "in the way");
    const QJsonObject answers = probe();
    // One dot before the whole path: relative to the current directory.
    QCOMPARE(homePath(answers), '.' + first.toUtf8());
    QVERIFY(answers.value(QStringLiteral("isDirectory")).toBool());
    QVERIFY(QDir(path(QStringLiteral("cwd/.")) + QFileInfo(first).path()).exists());
    QVERIFY(QFileInfo(first).isFile());
}

void tst_HostPlatformUnix::filesInTheWayTwice()
{
    const QString first = path(QStringLiteral("home/.com.kivotrade.tradeclient"));
    writeFile(first, "in the way");
    writeFile(path(QStringLiteral("cwd/.")) + first, "in the way");
    const QJsonObject answers = probe();
    QCOMPARE(homePath(answers), ".." + first.toUtf8());
    QVERIFY(QDir(m_scratch->path() + QFileInfo(first).path()).exists());
}

void tst_HostPlatformUnix::danglingLinkInTheWay()
{
    const QString first = path(QStringLiteral("home/.com.kivotrade.tradeclient"));
    QVERIFY(QDir().mkpath(path(QStringLiteral("home"))));
    QVERIFY(QFile::link(path(QStringLiteral("nowhere")), first));
    QCOMPARE(homePath(probe()), '.' + first.toUtf8());
}

void tst_HostPlatformUnix::linkToDirectory()
{
    const QString first = path(QStringLiteral("home/.com.kivotrade.tradeclient"));
    QVERIFY(QDir().mkpath(path(QStringLiteral("home"))));
    QVERIFY(QDir().mkpath(path(QStringLiteral("disk"))));
    QVERIFY(QFile::link(path(QStringLiteral("disk")), first));
    QCOMPARE(homePath(probe()), first.toUtf8());
}

void tst_HostPlatformUnix::creationFails()
{
    // A home that is a file: nothing exists below it, and nothing can be made there.
    writeFile(path(QStringLiteral("home")), "in the way");
    const QString first = path(QStringLiteral("home/.com.kivotrade.tradeclient"));
    const QJsonObject answers = probe();
    QCOMPARE(homePath(answers), '.' + first.toUtf8());
    QVERIFY(answers.value(QStringLiteral("isDirectory")).toBool());
}

void tst_HostPlatformUnix::creationFailsTwice()
{
    writeFile(path(QStringLiteral("home")), "in the way");
    writeFile(path(QStringLiteral("cwd/.")) + path(QStringLiteral("home")), "in the way");
    const QString first = path(QStringLiteral("home/.com.kivotrade.tradeclient"));
    QCOMPARE(homePath(probe()), ".." + first.toUtf8());
}

void tst_HostPlatformUnix::noDomain()
{
    QCOMPARE(homePath(probe(QString(), QStringLiteral("tradeclient"))),
             path(QStringLiteral("home/.tradeclient")).toUtf8());
}

void tst_HostPlatformUnix::slashesAfterHome()
{
    m_environment.insert(QStringLiteral("HOME"), path(QStringLiteral("home//")));
    QCOMPARE(homePath(probe()), path(QStringLiteral("home/.com.kivotrade.tradeclient")).toUtf8());
}

void tst_HostPlatformUnix::utf8Names()
{
    m_environment.insert(QStringLiteral("HOME"), path(QStringLiteral("交易")));
    m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    QCOMPARE(homePath(probe(QStringLiteral("kivotrade.com"), QStringLiteral("客户端"))),
             path(QStringLiteral("交易/.com.kivotrade.客户端")).toUtf8());
}

void tst_HostPlatformUnix::percentSigns()
{
    m_environment.insert(QStringLiteral("HOME"), path(QStringLiteral("%1%s%n")));
    QCOMPARE(homePath(probe()), path(QStringLiteral("%1%s%n/.com.kivotrade.tradeclient")).toUtf8());
}

void tst_HostPlatformUnix::noHome_data()
{
    QTest::addColumn<bool>("set");
    QTest::newRow("unset") << false;
    QTest::newRow("empty") << true;
}

void tst_HostPlatformUnix::noHome()
{
    QFETCH(const bool, set);
    if (set)
        m_environment.insert(QStringLiteral("HOME"), QString());
    else
        m_environment.remove(QStringLiteral("HOME"));
    const QString current = QFileInfo(path(QStringLiteral("cwd"))).canonicalFilePath();
    QVERIFY(!current.isEmpty());
    QCOMPARE(homePath(probe()), current.toUtf8());
}

void tst_HostPlatformUnix::noHomeNorCurrentDirectory()
{
    m_environment.remove(QStringLiteral("HOME"));
    const QJsonObject answers = probe(QStringLiteral("kivotrade.com"),
                                      QStringLiteral("tradeclient"), {QStringLiteral("dropCwd")});
    QVERIFY(answers.contains(QStringLiteral("home")));
    QCOMPARE(homePath(answers), QByteArray());
}

void tst_HostPlatformUnix::lengths_data()
{
    QTest::addColumn<int>("length"); // of the whole path
    QTest::addColumn<int>("kept");
    QTest::newRow("longest with a terminator") << 511 << 511;
    QTest::newRow("fills the buffer") << 512 << 512;
    QTest::newRow("cut") << 700 << 512;
}

void tst_HostPlatformUnix::lengths()
{
    QFETCH(const int, length);
    QFETCH(const int, kept);
    // No component may be longer than a file name: without a limit to the search, a directory
    // that can never be made is searched for ever.
    const QByteArray name = "/.com.kivotrade.client";
    QByteArray home = path(QStringLiteral("home")).toUtf8();
    home += '/' + QByteArray(200, 'a') + '/' + QByteArray(200, 'b') + '/';
    home += QByteArray(length - home.size() - name.size(), 'c');
    const QByteArray whole = home + name;
    QCOMPARE(whole.size(), length);
    m_environment.insert(QStringLiteral("HOME"), QString::fromUtf8(home));
    const QJsonObject answers = probe(QStringLiteral("kivotrade.com"), QStringLiteral("client"));
    QCOMPARE(homePath(answers), whole.left(kept));
    QCOMPARE(QByteArray::fromHex(answers[QStringLiteral("dataDirectory")].toString().toLatin1()),
             whole.left(kept));
    QVERIFY(QDir(QString::fromUtf8(home)).exists());
}

void tst_HostPlatformUnix::identifier_data()
{
    QTest::addColumn<QString>("domain");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("two") << "kivotrade.com"
                         << "tradeclient"
                         << "com.kivotrade.tradeclient";
    QTest::newRow("three") << "desk.kivotrade.com"
                           << "t"
                           << "com.kivotrade.desk.t";
    QTest::newRow("one") << "localhost"
                         << "t"
                         << "localhost.t";
    QTest::newRow("none") << ""
                          << "tradeclient"
                          << "tradeclient";
    QTest::newRow("dots in the name") << ""
                                      << "trade.client"
                                      << "trade.client";
    QTest::newRow("dot at the end") << "kivotrade.com."
                                    << "t"
                                    << "com.kivotrade.t";
}

void tst_HostPlatformUnix::identifier()
{
    QFETCH(const QString, domain);
    QFETCH(const QString, name);
    QFETCH(const QString, expected);
    QCOMPARE(HostPlatform::applicationIdentifier(domain, name), expected);
}

void tst_HostPlatformUnix::machineIdentifier_data()
{
    // A null text leaves the file out.
    QTest::addColumn<QByteArray>("dmi");
    QTest::addColumn<QByteArray>("machineId");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("both") << QByteArray("PF3X91\n") << QByteArray("3d12\n") << QByteArray("PF3X91");
    QTest::newRow("padded") << QByteArray("  PF3 X91\t \n") << QByteArray("3d12\n")
                            << QByteArray("PF3 X91");
    QTest::newRow("no line end") << QByteArray("PF3X91") << QByteArray() << QByteArray("PF3X91");
    QTest::newRow("first line") << QByteArray("PF\r\nX\n") << QByteArray() << QByteArray("PF");
    QTest::newRow("no DMI") << QByteArray() << QByteArray("3d12\n") << QByteArray("3d12");
    QTest::newRow("empty DMI") << QByteArray("") << QByteArray("3d12\n") << QByteArray("3d12");
    QTest::newRow("blank DMI") << QByteArray("  \n") << QByteArray("3d12\n") << QByteArray("3d12");
    QTest::newRow("neither") << QByteArray() << QByteArray() << QByteArray();
    QTest::newRow("both empty") << QByteArray("\n") << QByteArray("") << QByteArray();
}

void tst_HostPlatformUnix::machineIdentifier()
{
    QFETCH(const QByteArray, dmi);
    QFETCH(const QByteArray, machineId);
    QFETCH(const QByteArray, expected);
    for (const char* const entry : {"product_serial", "product_uuid"}) {
        const QString root = path(QString::fromLatin1(entry));
        if (!dmi.isNull())
            writeFile(root + QStringLiteral("/sys/class/dmi/id/") + QString::fromLatin1(entry),
                      dmi);
        if (!machineId.isNull())
            writeFile(root + QStringLiteral("/etc/machine-id"), machineId);
        const std::string found = HostPlatform::machineIdentifier(root.toStdString(), entry);
        QCOMPARE(QByteArray::fromStdString(found), expected);
    }
}

void tst_HostPlatformUnix::withheldFromTheUser()
{
    const QString serial = path(QStringLiteral("sys/class/dmi/id/product_serial"));
    writeFile(path(QStringLiteral("etc/machine-id")), "3d12\n");
    if (geteuid() == 0) {
        // Nothing is withheld from root by its mode; a directory cannot be read by anybody.
        QVERIFY(QDir().mkpath(serial));
    } else {
        writeFile(serial, "secret\n");
        QVERIFY(QFile::setPermissions(serial, {}));
    }
    QCOMPARE(HostPlatform::machineIdentifier(m_scratch->path().toStdString(), "product_serial"),
             std::string("3d12"));
}

void tst_HostPlatformUnix::terminatedCopy()
{
    char buffer[5];
    std::memset(buffer, 'x', sizeof buffer);
    HostPlatform::copyTerminated(buffer, "abcd");
    QCOMPARE(QByteArray(buffer, 5), QByteArray("abcd\0", 5));
    HostPlatform::copyTerminated(buffer, "efghij");
    QCOMPARE(QByteArray(buffer, 5), QByteArray("efgh\0", 5));
    HostPlatform::copyTerminated(buffer, "");
    QCOMPARE(buffer[0], '\0');
}

void tst_HostPlatformUnix::idsOfThisMachine()
{
    const auto lineOf
        = [](const QString& name) { return contentOf(name).split('\n').first().trimmed(); };
    const auto expected = [&lineOf](const QString& name) {
        const QByteArray line = lineOf(QStringLiteral("/sys/class/dmi/id/") + name);
        return line.isEmpty() ? lineOf(QStringLiteral("/etc/machine-id")) : line;
    };
    const QJsonObject answers = probe();
    QCOMPARE(answers.value(QStringLiteral("diskId")).toString().toUtf8(),
             expected(QStringLiteral("product_serial")));
    QCOMPARE(answers.value(QStringLiteral("systemUuid")).toString().toUtf8(),
             expected(QStringLiteral("product_uuid")));
}

void tst_HostPlatformUnix::versionText()
{
    // Too long for a string object to hold in itself.
    const QString version = QStringLiteral("10.2.3-交易-with-a-rather-long-suffix");
    QCoreApplication::setApplicationVersion(version);
    const char* const text = GetMainExecutableVersion();
    QCOMPARE(QByteArray(text), version.toUtf8());
    QCOMPARE(static_cast<const void*>(GetMainExecutableVersion()), static_cast<const void*>(text));
    QCOMPARE(QByteArray(text), version.toUtf8());
    QCoreApplication::setApplicationVersion(QString());
    QCOMPARE(QByteArray(GetMainExecutableVersion()), QByteArray(""));
}

void tst_HostPlatformUnix::versionNumber_data()
{
    QTest::addColumn<int>("number");
    for (const VersionNumber& row : versionTable)
        QTest::newRow(row.text) << row.number;
}

void tst_HostPlatformUnix::versionNumber()
{
    QFETCH(const int, number);
    QCoreApplication::setApplicationVersion(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(GetMainExecutableVersionNum(), number);
}

void tst_HostPlatformUnix::titleBarStays()
{
    QWidget window;
    window.show();
    const Qt::WindowFlags flags = window.windowFlags();
    const QRect geometry = window.geometry();
    hideWindowCaptionBar(reinterpret_cast<void*>(window.winId()));
    hideWindowCaptionBar(nullptr);
    QCOMPARE(window.windowFlags(), flags);
    QCOMPARE(window.geometry(), geometry);
    QVERIFY(window.isVisible());
}

TRADECONFIG_TEST_MAIN(tst_HostPlatformUnix)
#include "tst_HostPlatformUnix.moc"
