#include "client/DataDirectory.h"
#include "client/RecordStore.h"
#include "helper/NumberedRecord.h"
#include "support/TestMain.h"

#include <QProcess>
#include <QRandomGenerator>

#include <chrono>

/// A client that is killed while it stores the record leaves the old record or the new one.
class tst_RecordKill : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leavesAWholeRecord();
};

void tst_RecordKill::leavesAWholeRecord()
{
    const QByteArray wanted = qgetenv("TRADECONFIG_TEST_SEED");
    const quint32 seed
        = wanted.isEmpty() ? QRandomGenerator::system()->generate() : wanted.toUInt();
    qInfo("seed %u (set TRADECONFIG_TEST_SEED to repeat)", seed);
    QRandomGenerator random(seed);

    const QTemporaryDir home;
    const DataDirectory directory(home.path());
    RecordStore store(directory);
    constexpr int rounds = 120;
    int stored = 0;
    int midway = 0;
    QCOMPARE(store.save(numberedRecord(stored)), QString());
    for (int round = 0; round < rounds; ++round) {
        QProcess helper;
        helper.start(QStringLiteral(CLIENT_HELPER),
                     {QStringLiteral("save"), home.path(), QString::number(stored + 1)});
        // From the first stored record on, so that the kill falls into the middle of the work.
        QVERIFY(helper.waitForReadyRead(10000));
        const auto microseconds = static_cast<unsigned>(random.bounded(30000));
        const auto until
            = std::chrono::steady_clock::now() + std::chrono::microseconds(microseconds);
        while (std::chrono::steady_clock::now() < until) { }
        helper.kill();
        QVERIFY(helper.waitForFinished(10000));
        QCOMPARE(helper.exitStatus(), QProcess::CrashExit);
        const QList<QByteArray> said = helper.readAllStandardOutput().split('\n');
        // Every line but the text behind the last line break is a stored record.
        QVERIFY(said.size() >= 2);
        const int lastSaid = said.at(said.size() - 2).toInt();

        OwnedRecord record;
        const RecordStore::LoadReport report = store.load(record);
        QVERIFY2(report.isClean(), qPrintable(report.message()));
        const int found = record.get().splitBaseQty;
        QVERIFY2(found == lastSaid || found == lastSaid + 1,
                 qPrintable(QStringLiteral("%1 after %2").arg(found).arg(lastSaid)));
        QVERIFY(record == numberedRecord(found));
        midway += found == lastSaid + 1;
        stored = found;
    }
    qInfo("%d records stored, %d kills between storing and saying so", stored, midway);
    QVERIFY(stored >= rounds);

    store.removeLeftovers();
    OwnedRecord record;
    QVERIFY(store.load(record).isClean());
    QCOMPARE(record.get().splitBaseQty, stored);
}

TRADECONFIG_TEST_MAIN(tst_RecordKill)
#include "tst_RecordKill.moc"
