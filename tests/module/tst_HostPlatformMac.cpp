#include "module/NativeWindow.h"
#include "support/TestMain.h"
#include "tradeConfig/platform/HostPlatform.h"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QWidget>

namespace {

/// What macOS's own program says about this machine; null if it says nothing.
QString registryText(const QString& name)
{
    QProcess registry;
    registry.start(
        QStringLiteral("/usr/sbin/ioreg"),
        {QStringLiteral("-rd1"), QStringLiteral("-c"), QStringLiteral("IOPlatformExpertDevice")});
    if (!registry.waitForFinished())
        return QString();
    const QRegularExpression line(QStringLiteral("\"%1\" = \"([^\"]+)\"").arg(name));
    return line.match(QString::fromUtf8(registry.readAllStandardOutput())).captured(1);
}

} // namespace

/// The helpers as they are on a Mac: real frameworks, a real window, this machine's identifiers.
class tst_HostPlatformMac : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dataDirectory();
    void titleBar();
    void versionText();
    void versionNumber();
    void serialNumber();
    void uuid();
};

void tst_HostPlatformMac::dataDirectory()
{
    const QString fixedHome = qEnvironmentVariable("CFFIXED_USER_HOME");
    const QString home = qEnvironmentVariable("HOME");
    QVERIFY(home != fixedHome);
    const char* const path = ApplicationHomePath();
    const QFileInfo found(QString::fromUtf8(path));
    QVERIFY(found.isDir());
    QCOMPARE(found.canonicalFilePath(),
             QFileInfo(fixedHome).canonicalFilePath()
                 + QStringLiteral("/.com.kivotrade.tradeclient"));
    QVERIFY(!QByteArray(path).endsWith('/'));
    QCOMPARE(static_cast<const void*>(ApplicationHomePath()), static_cast<const void*>(path));
    // HOME has no say.
    QVERIFY(!QFileInfo::exists(home + QStringLiteral("/.com.kivotrade.tradeclient")));
}

void tst_HostPlatformMac::titleBar()
{
    constexpr unsigned long fullSizeContentView = 1UL << 15;
    QWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    void* const view = reinterpret_cast<void*>(window.winId());

    const NativeWindow before = NativeWindow::of(view);
    QVERIFY(!before.titleHidden);
    QVERIFY(!before.titleBarTransparent);
    QVERIFY(!before.closeButtonHidden);
    QVERIFY(!before.zoomButtonHidden);
    QVERIFY(!before.minimizeButtonHidden);
    QVERIFY(!(before.styleMask & fullSizeContentView));

    hideWindowCaptionBar(view);
    const NativeWindow after = NativeWindow::of(view);
    QVERIFY(after.titleHidden);
    QVERIFY(after.titleBarTransparent);
    QVERIFY(after.closeButtonHidden);
    QVERIFY(after.zoomButtonHidden);
    QVERIFY(after.minimizeButtonHidden);
    QCOMPARE(after.styleMask, before.styleMask | fullSizeContentView);
    QVERIFY(window.isVisible());
}

void tst_HostPlatformMac::versionText() { QCOMPARE(GetMainExecutableVersion(), BUNDLE_VERSION); }

void tst_HostPlatformMac::versionNumber()
{
    QCOMPARE(GetMainExecutableVersionNum(), BUNDLE_VERSION_NUMBER);
}

void tst_HostPlatformMac::serialNumber()
{
    const char* const text = GetDiskId();
    const QString expected = registryText(QStringLiteral("IOPlatformSerialNumber"));
    QVERIFY(!expected.isEmpty());
    QCOMPARE(QString::fromUtf8(text), expected);
    QCOMPARE(static_cast<const void*>(GetDiskId()), static_cast<const void*>(text));
}

void tst_HostPlatformMac::uuid()
{
    const char* const text = GetSystemUuid();
    const QString expected = registryText(QStringLiteral("IOPlatformUUID"));
    QVERIFY(!expected.isEmpty());
    QCOMPARE(QString::fromUtf8(text), expected);
    QCOMPARE(static_cast<const void*>(GetSystemUuid()), static_cast<const void*>(text));
}

int main(int argc, char** argv)
{
    const QTemporaryDir fixedHome;
    const QTemporaryDir home;
    // A native window, which no other test needs.
    qputenv("QT_QPA_PLATFORM", "cocoa");
    TestSupport::prepareEnvironment(fixedHome.path());
    qputenv("HOME", home.path().toLocal8Bit());
    const QApplication application(argc, argv);
    tst_HostPlatformMac test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_HostPlatformMac.moc"
