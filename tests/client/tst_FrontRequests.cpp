#include "client/DataDirectory.h"
#include "client/FrontRequests.h"
#include "support/TestMain.h"
#include "support/Unprivileged.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>

#include <cerrno>
#include <memory>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#ifdef Q_OS_LINUX
#include <sys/syscall.h>
#endif

namespace {

[[maybe_unused]] bool hasSockets = true; // set on Linux only

// As a second start does it.
class Asking {
public:
    explicit Asking(const DataDirectory& directory)
    {
        m_process.start(QStringLiteral(CLIENT_HELPER), {QStringLiteral("front"), directory.home()});
    }
    ~Asking() { m_process.waitForFinished(); }
    Q_DISABLE_COPY(Asking)

    bool ended() const { return m_process.state() == QProcess::NotRunning; }
    bool answered() const { return ended() && m_process.exitCode() == 0; }

private:
    QProcess m_process;
};

// A connection as anybody makes it who can reach the socket.
int connectTo(const QString& socketFile)
{
    const QByteArray path = QFile::encodeName(socketFile);
    sockaddr_un at = {};
    at.sun_family = AF_UNIX;
    qstrncpy(at.sun_path, path.constData(), sizeof at.sun_path);
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    if (::connect(descriptor, reinterpret_cast<const sockaddr*>(&at), sizeof at) == 0)
        return descriptor;
    const int error = errno;
    ::close(descriptor);
    errno = error;
    return -1;
}

} // namespace

#ifdef Q_OS_LINUX
// Found before the C library's: a file system without sockets.
extern "C" __attribute__((visibility("default"))) int bind(int descriptor, const sockaddr* at,
                                                           socklen_t size) noexcept
{
    if (!hasSockets) {
        errno = EPERM;
        return -1;
    }
    return int(syscall(SYS_bind, descriptor, at, size));
}
#endif

/// The running client is asked to come to the front.
class tst_FrontRequests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void isAnswered_data();
    void isAnswered();
    void waitsForTheClientToListen();
    void nobodyAnswers_data();
    void nobodyAnswers();
    void replacesWhatACrashLeft();
    void leavesNothingBehind();
    void belongsToTheUserAlone();
    void readsNothing();
    void survivesWhoGaveUp();
    void worksWithoutSockets();

private:
    QString socketFile() const
    {
        return m_directory->runDirectory() + QStringLiteral("/client.socket");
    }

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<DataDirectory> m_directory;
};

void tst_FrontRequests::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_directory = std::make_unique<DataDirectory>(m_home->path());
    QVERIFY(m_directory->makeRunDirectory());
}

void tst_FrontRequests::isAnswered_data()
{
    QTest::addColumn<QString>("below");
    QTest::newRow("short path") << QString();
    QTest::newRow("long path") << QStringLiteral("/long") + QString(200, QLatin1Char('g'))
            + QLatin1Char('/') + QString(200, QLatin1Char('g'));
    QTest::newRow("Chinese path") << QStringLiteral("/数据 目录");
}

void tst_FrontRequests::isAnswered()
{
    QFETCH(const QString, below);
    const DataDirectory directory(m_home->path() + below);
    QVERIFY(directory.makeRunDirectory());
    const QString before = QDir::currentPath();
    const FrontRequests requests(directory);
    QSignalSpy arrived(&requests, &FrontRequests::arrived);
    for (int count = 1; count <= 3; ++count) {
        const Asking second(directory);
        QTRY_VERIFY(second.ended());
        QVERIFY(second.answered());
        QCOMPARE(arrived.count(), count);
    }
    QCOMPARE(QDir::currentPath(), before);
}

void tst_FrontRequests::waitsForTheClientToListen()
{
    const Asking second(*m_directory);
    // Long enough for it to have given up at once.
    QTest::qWait(200);
    QVERIFY(!second.ended());
    const FrontRequests requests(*m_directory);
    QTRY_VERIFY(second.ended());
    QVERIFY(second.answered());
}

void tst_FrontRequests::nobodyAnswers_data()
{
    QTest::addColumn<bool>("isBusy");
    QTest::newRow("nobody listens") << false;
    QTest::newRow("hears nothing") << true;
}

void tst_FrontRequests::nobodyAnswers()
{
    QFETCH(const bool, isBusy);
    const std::unique_ptr<FrontRequests> busy(isBusy ? new FrontRequests(*m_directory) : nullptr);
    QElapsedTimer timer;
    timer.start();
    // It blocks, so that nobody hears it meanwhile.
    QVERIFY(!FrontRequests::send(*m_directory));
    QVERIFY2(timer.elapsed() >= 1900, qPrintable(QString::number(timer.elapsed())));
    QVERIFY2(timer.elapsed() < 4000, qPrintable(QString::number(timer.elapsed())));
}

void tst_FrontRequests::replacesWhatACrashLeft()
{
    {
        sockaddr_un at = {};
        at.sun_family = AF_UNIX;
        qstrncpy(at.sun_path, QFile::encodeName(socketFile()).constData(), sizeof at.sun_path);
        const int crashed = ::socket(AF_UNIX, SOCK_STREAM, 0);
        QCOMPARE(::bind(crashed, reinterpret_cast<const sockaddr*>(&at), sizeof at), 0);
        ::close(crashed);
    }
    QCOMPARE(connectTo(socketFile()), -1);
    QCOMPARE(errno, ECONNREFUSED);
    const FrontRequests requests(*m_directory);
    const Asking second(*m_directory);
    QTRY_VERIFY(second.ended());
    QVERIFY(second.answered());
}

void tst_FrontRequests::leavesNothingBehind()
{
    {
        const FrontRequests requests(*m_directory);
        QVERIFY(QFileInfo::exists(socketFile()));
    }
    QVERIFY(!QFileInfo::exists(socketFile()));
}

void tst_FrontRequests::belongsToTheUserAlone()
{
    const FrontRequests requests(*m_directory);
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(socketFile()).constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0600);

    if (geteuid() != 0)
        TEST_SKIP("Only the superuser can become somebody else");
    QCOMPARE(::chmod(QFile::encodeName(m_home->path()).constData(), 0755), 0);
    const Unprivileged nobody({});
    QCOMPARE(connectTo(socketFile()), -1);
    QCOMPARE(errno, EACCES);
}

void tst_FrontRequests::readsNothing()
{
    const FrontRequests requests(*m_directory);
    QSignalSpy arrived(&requests, &FrontRequests::arrived);
    const int talkative = connectTo(socketFile());
    QVERIFY(talkative >= 0);
    QCOMPARE(::write(talkative, "quit\nopen /etc/passwd\n", 22), ssize_t(22));
    // One that says nothing does not keep the next one waiting.
    const int silent = connectTo(socketFile());
    QVERIFY(silent >= 0);
    const Asking second(*m_directory);
    QTRY_VERIFY(second.ended());
    QVERIFY(second.answered());
    QCOMPARE(arrived.count(), 3);
    char answer[16];
    QCOMPARE(::read(silent, answer, sizeof answer), ssize_t(1));
    ::close(silent);
    ::close(talkative);
}

void tst_FrontRequests::survivesWhoGaveUp()
{
    const FrontRequests requests(*m_directory);
    QSignalSpy arrived(&requests, &FrontRequests::arrived);
    for (int i = 0; i < 20; ++i)
        ::close(connectTo(socketFile()));
    QTRY_COMPARE(arrived.count(), 20);
    const Asking second(*m_directory);
    QTRY_VERIFY(second.ended());
    QVERIFY(second.answered());
}

void tst_FrontRequests::worksWithoutSockets()
{
    {
        const DataDirectory nowhere(m_home->path() + QStringLiteral("/nowhere"));
        const FrontRequests requests(nowhere);
        QVERIFY(!FrontRequests::send(nowhere, 100));
    }
#ifdef Q_OS_LINUX
    hasSockets = false;
    {
        const FrontRequests requests(*m_directory);
        QVERIFY(!QFileInfo::exists(socketFile()));
        QVERIFY(!FrontRequests::send(*m_directory, 100));
    }
    hasSockets = true;
#endif
}

TRADECONFIG_TEST_MAIN(tst_FrontRequests)
#include "tst_FrontRequests.moc"
