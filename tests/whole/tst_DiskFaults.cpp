#include "client/DataDirectory.h"
#include "client/RecordStore.h"
#include "client/TradeCore.h"
#include "support/Files.h"
#include "support/ModalAnswer.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "support/Unprivileged.h"
#include "tradeConfig/dialog/InterfaceSettings.h"

#include <QSignalSpy>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr int boundless = -1;

// How many bytes this process may still write to files, and what a rename fails with.
int bytesLeft = boundless;
int renameError = 0;

bool isFile(int descriptor)
{
    struct stat info = {};
    return fstat(descriptor, &info) == 0 && S_ISREG(info.st_mode);
}

} // namespace

// The toolkit's libraries find these before those of the C library. As on a disk that fills up,
// the last bytes that fit are written and the next write fails.
extern "C" __attribute__((visibility("default"))) ssize_t write(int descriptor, const void* data,
                                                                std::size_t size)
{
    std::size_t fitting = size;
    if (bytesLeft != boundless && size > 0 && isFile(descriptor)) {
        if (bytesLeft == 0) {
            errno = ENOSPC;
            return -1;
        }
        fitting = std::min(size, std::size_t(bytesLeft));
        bytesLeft -= int(fitting);
    }
    return syscall(SYS_write, descriptor, data, fitting);
}

extern "C" __attribute__((visibility("default"))) int rename(const char* from,
                                                             const char* to) noexcept
{
    if (renameError != 0) {
        errno = renameError;
        return -1;
    }
    return int(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

extern "C" __attribute__((visibility("default"))) int renameat2(int fromDirectory, const char* from,
                                                                int toDirectory, const char* to,
                                                                unsigned flags) noexcept
{
    if (renameError != 0) {
        errno = renameError;
        return -1;
    }
    return int(syscall(SYS_renameat2, fromDirectory, from, toDirectory, to, flags));
}

namespace {

/// A record that was stored while the disk was well, and has changed since.
struct ChangedRecord {
    explicit ChangedRecord(const QString& home)
        : directory(home)
        , store(directory)
    {
        if (!store.save(record).isEmpty())
            QTest::qFail("the record could not be stored at all", __FILE__, __LINE__);
        before = contentOf(store.fileName());
        record.get().lockMinutes = 31;
    }

    QString save() { return store.save(record); }
    QByteArray stored() const { return contentOf(store.fileName()); }
    int files() const
    {
        return QDir(directory.configDirectory()).entryList(QDir::Files | QDir::Hidden).size();
    }

    const DataDirectory directory;
    RecordStore store;
    OwnedRecord record;
    QByteArray before;
};

} // namespace

/// Disks that are full or refuse to be written, while the record and the settings are stored.
class tst_DiskFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void recordOnADiskThatFillsUp();
    void recordThatCannotBeRenamed_data();
    void recordThatCannotBeRenamed();
    void recordInAReadOnlyDirectory();
    void recordThatCannotBeRead();
    void settingsOnADiskThatFillsUp();
    void settingsInAReadOnlyDirectory();
    void settingsThatCannotBeRead();
    void settingsThatAreADirectory();
    void confirmWithAFullDisk();
    void languageInAReadOnlyDirectory();

private:
    QString m_home;
    QString m_settings;
};

void tst_DiskFaults::initTestCase()
{
    m_settings = InterfaceSettings::filePath();
    m_home = QFileInfo(m_settings).path();
    QVERIFY(m_home.endsWith(QLatin1String("/.com.kivotrade.tradeclient")));
    // Others may pass through the temporary directory around it, as through a real home.
    QCOMPARE(::chmod(QFile::encodeName(QDir::homePath()).constData(), 0711), 0);
}

void tst_DiskFaults::init()
{
    QVERIFY(QDir(m_home).removeRecursively());
    QVERIFY(QDir().mkpath(m_home));
}

void tst_DiskFaults::cleanup()
{
    bytesLeft = boundless;
    renameError = 0;
}

void tst_DiskFaults::recordOnADiskThatFillsUp()
{
    ChangedRecord record(m_home);
    const QByteArray changed
        = QByteArray(record.before).replace("\"lockMinutes\": 30", "\"lockMinutes\": 31");
    QVERIFY(changed != record.before);
    QVERIFY(record.before.size() > 600);

    for (int room = 0; room < record.before.size(); room += room < 64 ? 1 : 7) {
        bytesLeft = room;
        const QString failure = record.save();
        bytesLeft = boundless;
        QVERIFY2(failure.contains(record.store.fileName()), qPrintable(QString::number(room)));
        QCOMPARE(record.stored(), record.before);
        QCOMPARE(record.files(), 1);
    }
    bytesLeft = changed.size();
    QCOMPARE(record.save(), QString());
    QCOMPARE(record.stored(), changed);
}

void tst_DiskFaults::recordThatCannotBeRenamed_data()
{
    QTest::addColumn<int>("error");
    QTest::newRow("no permission") << EACCES;
    QTest::newRow("no space for the name") << ENOSPC;
    QTest::newRow("read-only file system") << EROFS;
    QTest::newRow("broken disk") << EIO;
}

void tst_DiskFaults::recordThatCannotBeRenamed()
{
    QFETCH(int, error);
    ChangedRecord record(m_home);
    renameError = error;
    QVERIFY(record.save().contains(record.store.fileName()));
    QCOMPARE(record.stored(), record.before);
    QCOMPARE(record.files(), 1);
    renameError = 0;
    QCOMPARE(record.save(), QString());
    QVERIFY(record.stored() != record.before);
}

void tst_DiskFaults::recordInAReadOnlyDirectory()
{
    ChangedRecord record(m_home);
    {
        const Unprivileged user(
            {m_home, record.directory.configDirectory(), record.store.fileName()});
        const ReadOnly locked(record.directory.configDirectory());
        QVERIFY(record.save().contains(record.store.fileName()));
    }
    QCOMPARE(record.stored(), record.before);
}

void tst_DiskFaults::recordThatCannotBeRead()
{
    // Someone else's file is neither lost nor overwritten: it is set aside and told of.
    const DataDirectory directory(m_home);
    RecordStore store(directory);
    OwnedRecord record;
    record.get().lockMinutes = 31;
    QCOMPARE(store.save(record), QString());
    const QByteArray before = contentOf(store.fileName());
    RecordStore::LoadReport report;
    {
        const Unprivileged user({m_home, directory.configDirectory(), store.fileName()});
        QVERIFY(QFile::setPermissions(store.fileName(), QFile::WriteOwner));
        report = store.load(record);
    }
    QVERIFY(!report.isClean());
    QVERIFY(record == OwnedRecord());
    QVERIFY(report.message().contains(report.setAside));
    QVERIFY(QFile::setPermissions(report.setAside, QFile::ReadOwner));
    QCOMPARE(contentOf(report.setAside), before);
}

void tst_DiskFaults::settingsOnADiskThatFillsUp()
{
    const QByteArray before = "[UI]\nlanguage=zh_TW\nscale=150\n";
    const QByteArray after = "[UI]\nlanguage=en_US\nscale=200\n";
    for (int room = 0; room < 3 * after.size(); ++room) {
        writeFile(m_settings, before);
        bytesLeft = room;
        InterfaceSettings::save(2, 200);
        bytesLeft = boundless;
        if (room < after.size() || contentOf(m_settings) != after)
            QCOMPARE(contentOf(m_settings), before);
        QCOMPARE(QDir(m_home).entryList(QDir::Files | QDir::Hidden).size(), 1);
        QVERIFY(QFile::remove(m_settings));
    }
    writeFile(m_settings, before);
    InterfaceSettings::save(2, 200);
    QCOMPARE(contentOf(m_settings), after);
}

void tst_DiskFaults::settingsInAReadOnlyDirectory()
{
    const QByteArray before = "[UI]\nlanguage=zh_TW\nscale=150\n";
    writeFile(m_settings, before);
    {
        const Unprivileged user({m_home});
        const ReadOnly locked(m_home);
        QCOMPARE(InterfaceSettings::languageIndex(), 1);
        InterfaceSettings::save(2, 200);
    }
    QCOMPARE(contentOf(m_settings), before);
    QCOMPARE(InterfaceSettings::languageIndex(), 1);
    QCOMPARE(InterfaceSettings::scale(), 150);
}

void tst_DiskFaults::settingsThatCannotBeRead()
{
    writeFile(m_settings, "[UI]\nlanguage=zh_TW\nscale=150\n");
    const Unprivileged user({m_home, m_settings});
    QVERIFY(QFile::setPermissions(m_settings, QFile::Permissions()));
    QCOMPARE(InterfaceSettings::languageIndex(), 0);
    QCOMPARE(InterfaceSettings::scale(), 0);
}

void tst_DiskFaults::settingsThatAreADirectory()
{
    QVERIFY(QDir().mkpath(m_settings + QStringLiteral("/inside")));
    QCOMPARE(InterfaceSettings::languageIndex(), 0);
    QCOMPARE(InterfaceSettings::scale(), 0);
    InterfaceSettings::save(2, 200);
    QVERIFY(QFileInfo(m_settings + QStringLiteral("/inside")).isDir());
}

void tst_DiskFaults::confirmWithAFullDisk()
{
    // The core tells its own client of the failure; the dialog has done its part and closes.
    const DataDirectory directory(m_home);
    TradeCore core(directory);
    QVERIFY(core.load().isClean());
    core.GetTradeParm()->lockMinutes = 45;
    core.SaveTradeParm();
    const QByteArray before = contentOf(directory.recordFile());
    QSignalSpy failed(&core, &TradeCore::storingFailed);

    CTradeConfigWidget dialog(&core);
    dialog.show();
    dialog.ui.lineEdit_system_lockTime->setText(QStringLiteral("46"));
    bytesLeft = 100;
    dialog.WriteAllParm();
    bytesLeft = boundless;
    QCOMPARE(failed.count(), 1);
    QVERIFY(dialog.isHidden());
    QCOMPARE(core.GetTradeParm()->lockMinutes, 46);
    QCOMPARE(contentOf(directory.recordFile()), before);
    QCOMPARE(core.storeIfChanged(), QString());
    QVERIFY(contentOf(directory.recordFile()).contains("\"lockMinutes\": 46"));
}

void tst_DiskFaults::languageInAReadOnlyDirectory()
{
    const QByteArray before = "[UI]\nlanguage=zh_TW\nscale=150\n";
    writeFile(m_settings, before);
    TestDialog dialog;
    dialog->show();
    QCOMPARE(dialog->ui.comboBox_system_language->currentIndex(), 1);
    {
        const Unprivileged user({m_home});
        const ReadOnly locked(m_home);
        const ModalAnswer answer = ModalAnswer::clicking(QStringLiteral("否"));
        dialog->ui.comboBox_system_language->setCurrentIndex(2);
    }
    QCOMPARE(dialog.trade.parm().languageIndex, 2);
    QCOMPARE(contentOf(m_settings), before);
    QVERIFY(dialog->isVisible());
    dialog->WriteAllParm();
    QCOMPARE(dialog.trade.saves, 1);
    QVERIFY(dialog->isHidden());
}

TRADECONFIG_TEST_MAIN(tst_DiskFaults)
#include "tst_DiskFaults.moc"
