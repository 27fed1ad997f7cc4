#include "client/DataDirectory.h"
#include "client/RecordStore.h"
#include "helper/NumberedRecord.h"
#include "helper/NumberedSettings.h"
#include "support/Files.h"
#include "support/TestMain.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QSettings>

#include <chrono>
#include <functional>

/// A client that is killed while it stores record or interface settings leaves the old ones or the
/// new ones.
class tst_RecordKill : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void leavesAWholeRecord();
    void leavesWholeSettings();

private:
    static int rounds(int usual);
    void storeAndKill(const QString& what, const DataDirectory& directory, int rounds,
                      const std::function<int(int lastSaid)>& find);

    QRandomGenerator m_random;
};

void tst_RecordKill::initTestCase()
{
    const QByteArray wanted = qgetenv("TRADECONFIG_TEST_SEED");
    const quint32 seed
        = wanted.isEmpty() ? QRandomGenerator::system()->generate() : wanted.toUInt();
    qInfo("seed %u (set TRADECONFIG_TEST_SEED to repeat)", seed);
    m_random.seed(seed);
}

/// TRADECONFIG_KILLS is how often both are killed together.
int tst_RecordKill::rounds(int usual)
{
    const int wanted = qEnvironmentVariableIntValue("TRADECONFIG_KILLS");
    return wanted > 0 ? (wanted + 1) / 2 : usual;
}

/// Kills a process that stores without end, again and again. @p find looks at what is there after
/// each kill and returns its number, or -1 if it is not whole.
void tst_RecordKill::storeAndKill(const QString& what, const DataDirectory& directory, int rounds,
                                  const std::function<int(int lastSaid)>& find)
{
    int stored = 0;
    int midway = 0;
    for (int round = 0; round < rounds; ++round) {
        QProcess helper;
        helper.start(QStringLiteral(CLIENT_HELPER),
                     {what, directory.home(), QString::number(stored + 1)});
        // From the first one stored on, so that the kill falls into the middle of the work.
        QVERIFY(helper.waitForReadyRead(60000));
        const auto microseconds = static_cast<unsigned>(m_random.bounded(30000));
        const auto until
            = std::chrono::steady_clock::now() + std::chrono::microseconds(microseconds);
        while (std::chrono::steady_clock::now() < until) { }
        helper.kill();
        QVERIFY(helper.waitForFinished(10000));
        QCOMPARE(helper.exitStatus(), QProcess::CrashExit);
        const QList<QByteArray> said = helper.readAllStandardOutput().split('\n');
        // Every line but the text behind the last line break is a stored number.
        QVERIFY(said.size() >= 2);
        const int lastSaid = said.at(said.size() - 2).toInt();

        const int found = find(lastSaid);
        QVERIFY2(found == lastSaid || found == lastSaid + 1,
                 qPrintable(QStringLiteral("%1 after %2").arg(found).arg(lastSaid)));
        midway += found == lastSaid + 1;
        stored = found;
    }
    qInfo("%d kills, %d stored, %d kills between storing and saying so", rounds, stored, midway);
    QVERIFY(stored >= rounds);
}

void tst_RecordKill::leavesAWholeRecord()
{
    const QTemporaryDir home;
    const DataDirectory directory(home.path());
    RecordStore store(directory);
    QCOMPARE(store.save(numberedRecord(0)), QString());
    int last = -1;
    storeAndKill(QStringLiteral("save"), directory, rounds(120), [&](int) {
        OwnedRecord record;
        const RecordStore::LoadReport report = store.load(record);
        if (!report.isClean())
            qWarning("%s", qPrintable(report.message()));
        const int found = record.get().splitBaseQty;
        last = report.isClean() && record == numberedRecord(found) ? found : -1;
        return last;
    });

    store.removeLeftovers();
    OwnedRecord record;
    QVERIFY(store.load(record).isClean());
    QCOMPARE(record.get().splitBaseQty, last);
}

void tst_RecordKill::leavesWholeSettings()
{
    // Where the module finds it: in the home directory of the environment, by the client's name.
    const DataDirectory directory(qEnvironmentVariable("HOME")
                                  + QStringLiteral("/.com.kivotrade.tradeclient"));
    QVERIFY(directory.makeConfigDirectory());
    const QByteArray others = QByteArrayLiteral("[Host]\nkey=").append(3000, 'x');
    writeFile(directory.settingsFile(), others + "\n\n[UI]\nlanguage=zh_CN\nscale=100\n");
    storeAndKill(QStringLiteral("settings"), directory, rounds(40), [&](int lastSaid) {
        constexpr const char* codes[] = {"zh_CN", "zh_TW", "en_US"};
        for (const int number : {lastSaid, lastSaid + 1}) {
            const QByteArray expected = others
                + "\n\n[UI]\nlanguage=" + codes[numberedLanguage(number)]
                + "\nscale=" + QByteArray::number(numberedScale(number)) + '\n';
            if (contentOf(directory.settingsFile()) == expected)
                return number;
        }
        qWarning("%s", contentOf(directory.settingsFile()).right(200).constData());
        return -1;
    });
}

TRADECONFIG_TEST_MAIN(tst_RecordKill)
#include "tst_RecordKill.moc"
