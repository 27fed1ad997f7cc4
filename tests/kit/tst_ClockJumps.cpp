#include "support/RecordingSkin.h"
#include "support/TestMain.h"
#include "tradeConfig/MessageBox.h"
#include "tradeConfig/TipLabel.h"

#include <QGraphicsOpacityEffect>

#include <ctime>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

// Both for the thread of the tests alone: the test library's watchdog lives by the real ones.
long wallSeconds = 0; // added to the clock on the wall
long steadyMilliseconds = 1000000; // the steady clocks, which stand still by themselves

} // namespace

// The toolkit's libraries find these before those of the C library.
extern "C" __attribute__((visibility("default"))) int clock_gettime(clockid_t clock,
                                                                    timespec* now) noexcept
{
    const bool isOurs = syscall(SYS_gettid) == getpid();
    if (isOurs && clock != CLOCK_REALTIME && clock != CLOCK_REALTIME_COARSE) {
        now->tv_sec = steadyMilliseconds / 1000;
        now->tv_nsec = steadyMilliseconds % 1000 * 1000000;
        return 0;
    }
    const auto result = static_cast<int>(syscall(SYS_clock_gettime, clock, now));
    if (isOurs)
        now->tv_sec += wallSeconds;
    return result;
}

extern "C" __attribute__((visibility("default"))) int gettimeofday(timeval* now, void*) noexcept
{
    timespec precise = {};
    clock_gettime(CLOCK_REALTIME, &precise);
    now->tv_sec = precise.tv_sec;
    now->tv_usec = precise.tv_nsec / 1000;
    return 0;
}

extern "C" __attribute__((visibility("default"))) time_t time(time_t* now) noexcept
{
    timespec precise = {};
    clock_gettime(CLOCK_REALTIME, &precise);
    if (now)
        *now = precise.tv_sec;
    return precise.tv_sec;
}

/**
 * The countdown and the fade when the clock on the wall is set, or the process stood still.
 *
 * Both clocks of this process are the test's, so nothing here waits.
 */
class tst_ClockJumps : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void clocksAreTheTests();
    void countdown_data();
    void countdown();
    void countdownAfterAStandstill();
    void fade_data();
    void fade();
    void fadeAfterAStandstill();

private:
    static void jumps();
    static void pass(int milliseconds);
    static int timeUntil(const CMessageBox& box, int seconds);
};

// A tick of a coarse timer may come 5 % early or late.
#define VERIFY_ONE_SECOND(milliseconds)                                                            \
    do {                                                                                           \
        const int taken = (milliseconds);                                                          \
        QVERIFY2(taken >= 900 && taken <= 1100, qPrintable(QString::number(taken)));               \
    } while (false)

void tst_ClockJumps::init()
{
    RecordingSkin::reset();
    wallSeconds = 0;
}

void tst_ClockJumps::jumps()
{
    constexpr int day = 24 * 3600;
    QTest::addColumn<int>("seconds");
    QTest::newRow("not at all") << 0;
    QTest::newRow("a second back") << -1;
    QTest::newRow("an hour on, as in spring") << 3600;
    QTest::newRow("an hour back, as in autumn") << -3600;
    QTest::newRow("a day on") << day;
    QTest::newRow("ten years on") << 3650 * day;
    QTest::newRow("ten years back") << -3650 * day;
}

// Moves the steady clock, in steps that an event loop would make too.
void tst_ClockJumps::pass(int milliseconds)
{
    constexpr int step = 10;
    for (int left = milliseconds; left > 0; left -= step) {
        steadyMilliseconds += qMin(step, left);
        QCoreApplication::processEvents();
    }
}

// Lets time pass until the box counts @p seconds; how many milliseconds that took.
int tst_ClockJumps::timeUntil(const CMessageBox& box, int seconds)
{
    constexpr int longest = 5000;
    int taken = 0;
    for (; box.countdown != seconds && taken < longest; taken += 10)
        pass(10);
    return taken;
}

void tst_ClockJumps::clocksAreTheTests()
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    QElapsedTimer steady;
    steady.start();
    wallSeconds = 5000;
    QVERIFY(before.secsTo(QDateTime::currentDateTimeUtc()) >= 5000);
    QCOMPARE(steady.elapsed(), 0);
    steadyMilliseconds += 100000;
    QCOMPARE(steady.elapsed(), 100000);
    QVERIFY(before.secsTo(QDateTime::currentDateTimeUtc()) < 5060);
}

void tst_ClockJumps::countdown_data() { jumps(); }

void tst_ClockJumps::countdown()
{
    QFETCH(int, seconds);
    CMessageBox box(nullptr, QMessageBox::Information, QStringLiteral("a"), QStringLiteral("b"),
                    QMessageBox::Ok, 3);
    box.show();
    QCOMPARE(box.btn1->text(), QStringLiteral("确定(3)"));
    pass(500);
    wallSeconds = seconds;
    QCoreApplication::processEvents();
    QCOMPARE(box.countdown, 3);
    VERIFY_ONE_SECOND(500 + timeUntil(box, 2));
    wallSeconds = 0;
    VERIFY_ONE_SECOND(timeUntil(box, 1));
    QCOMPARE(box.btn1->text(), QStringLiteral("确定(2)"));
    wallSeconds = seconds;
    VERIFY_ONE_SECOND(timeUntil(box, 0));
    pass(800);
    QVERIFY(box.isVisible());
    wallSeconds = 0;
    pass(400);
    QVERIFY(!box.isVisible());
    QCOMPARE(box.result(), 1024);
}

void tst_ClockJumps::countdownAfterAStandstill()
{
    // A process that stood still for an hour shows the question for the rest of its time.
    CMessageBox box(nullptr, QMessageBox::Information, QStringLiteral("a"), QStringLiteral("b"),
                    QMessageBox::Ok, 3);
    box.show();
    pass(100);
    steadyMilliseconds += 3600 * 1000;
    QCoreApplication::processEvents();
    QCOMPARE(box.countdown, 2);
    QVERIFY(box.isVisible());
    pass(500);
    QCOMPARE(box.countdown, 2);
}

void tst_ClockJumps::fade_data() { jumps(); }

void tst_ClockJumps::fade()
{
    QFETCH(int, seconds);
    QWidget parent;
    CTipLabel label(QStringLiteral("a"), true, &parent);
    parent.show();
    pass(50);
    label.SetAutoHide();
    pass(500);
    wallSeconds = seconds;
    pass(900);
    const auto* const effect = qobject_cast<QGraphicsOpacityEffect*>(label.graphicsEffect());
    QVERIFY(effect);
    QCOMPARE(effect->opacity(), 1.0);
    pass(600);
    // 2000 ms of 2500, give or take one step of the animation.
    QVERIFY2(effect->opacity() > 0.45 && effect->opacity() < 0.55,
             qPrintable(QString::number(effect->opacity())));
    wallSeconds = 0;
    QVERIFY(label.isVisible());
    pass(600);
    QVERIFY(label.isHidden());
}

void tst_ClockJumps::fadeAfterAStandstill()
{
    QWidget parent;
    CTipLabel label(QStringLiteral("a"), true, &parent);
    parent.show();
    label.SetAutoHide();
    pass(100);
    steadyMilliseconds += 3600 * 1000;
    pass(50);
    QVERIFY(label.isHidden());
}

TRADECONFIG_TEST_MAIN(tst_ClockJumps)
#include "tst_ClockJumps.moc"
