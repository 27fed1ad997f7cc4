#include "support/Files.h"
#include "support/TestMain.h"
#include "x11/OtherWindows.h"

#include <memory>

namespace {

bool isMinimised(const QByteArray& window)
{
    return answerOf(
               QStringLiteral("xprop"),
               {QStringLiteral("-id"), QString::fromLatin1(window), QStringLiteral("WM_STATE")})
        .contains("Iconic");
}

} // namespace

/// A second start, and the window of the first.
class tst_SecondStartOnScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsItsIcon();
    void bringsTheWindowToTheFront_data();
    void bringsTheWindowToTheFront();

private:
    std::unique_ptr<QProcess> startClient() const;

    const QTemporaryDir m_home;
};

std::unique_ptr<QProcess> tst_SecondStartOnScreen::startClient() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), m_home.path());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    auto client = std::make_unique<QProcess>();
    client->setProcessEnvironment(environment);
    client->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    client->start(QStringLiteral(CLIENT_PROGRAM), QStringList());
    return client;
}

void tst_SecondStartOnScreen::showsItsIcon()
{
    const auto client = startClient();
    const QStringList search{QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                             QStringLiteral("--name"), QStringLiteral("^交易客户端$")};
    QTRY_VERIFY_WITH_TIMEOUT(!xdotoolSays(search).isEmpty(), patience);
    const auto property = [&search](const char* name) {
        return answerOf(
            QStringLiteral("xprop"),
            {QStringLiteral("-id"), QString::fromLatin1(xdotoolSays(search)), QLatin1String(name)});
    };
    const QByteArray icon = property("_NET_WM_ICON");
    // The window manager gives one of 48 pixels to a window without.
    QVERIFY2(icon.contains("Icon (128 x 128)"), icon.left(200).constData());
    client->terminate();
    QVERIFY(client->waitForFinished(patience));
}

void tst_SecondStartOnScreen::bringsTheWindowToTheFront_data()
{
    QTest::addColumn<bool>("minimised");
    QTest::newRow("behind another window") << false;
    QTest::newRow("minimised") << true;
}

void tst_SecondStartOnScreen::bringsTheWindowToTheFront()
{
    QFETCH(const bool, minimised);
    const auto first = startClient();
    const QString title = QStringLiteral("交易客户端");
    QByteArray window;
    QTRY_VERIFY_WITH_TIMEOUT(!(window = activeWindowNamed(title)).isEmpty(), patience);

    // Another program's window, which its user works in.
    QWidget other;
    other.resize(1200, 900);
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    activate(other);
    click(other);
    QTRY_COMPARE_WITH_TIMEOUT(activeWindow(), QByteArray::number(other.winId()), patience);
    if (minimised) {
        xdotool({QStringLiteral("windowminimize"), QString::fromLatin1(window)});
        QTRY_VERIFY_WITH_TIMEOUT(isMinimised(window), patience);
    }

    const auto second = startClient();
    QVERIFY(second->waitForFinished(patience));
    QCOMPARE(second->exitStatus(), QProcess::NormalExit);
    QCOMPARE(second->exitCode(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(activeWindow(), window, patience);
    QVERIFY(!isMinimised(window));
    QCOMPARE(windowsNamed(title), QList<QByteArray>{window});
    QCOMPARE(first->state(), QProcess::Running);

    first->terminate();
    QVERIFY(first->waitForFinished(patience));
}

TRADECONFIG_TEST_MAIN(tst_SecondStartOnScreen)
#include "tst_SecondStartOnScreen.moc"
