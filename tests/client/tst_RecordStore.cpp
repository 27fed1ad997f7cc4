#include "client/DataDirectory.h"
#include "client/RecordFields.h"
#include "client/RecordStore.h"
#include "client/TradeCore.h"
#include "support/Files.h"
#include "support/KeyText.h"
#include "support/TestMain.h"
#include "support/Unprivileged.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QSignalSpy>

#include <csignal>
#include <cstdlib>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using RecordFields::Field;
using RecordFields::Kind;

namespace {

struct IntegerExpectation {
    const char* name;
    int preset;
    int minimum;
    int maximum;
};

constexpr int anyMinimum = -2147483647 - 1;
constexpr int anyMaximum = 2147483647;

constexpr IntegerExpectation integers[] = {
    {"defaultBuyPrice", 0, 0, 6},
    {"defaultSellPrice", 0, 0, 6},
    {"defaultBuyQty", 0, 0, 5},
    {"defaultSellQty", 0, 0, 5},
    {"afterOrderForm", 0, 0, 3},
    {"clickBookQty", 1, 0, 1},
    {"inputBoxState", 1, 0, 1},
    {"confirmCancel", 1, 0, 1},
    {"confirmOrder", 1, 0, 1},
    {"orderSuccessDialog", 1, 0, 1},
    {"splitEnabled", 0, 0, 1},
    {"splitBaseQty", 10000, 0, 10000000},
    {"splitStrategy", 0, 0, 2},
    {"splitMaxQty", 50000, 0, 10000000},
    {"splitMinQty", 100, 0, 10000000},
    {"splitStepQty", 100, 0, 10000000},
    {"starSplitEnabled", 0, 0, 1},
    {"starSplitBaseQty", 10000, 0, 10000000},
    {"starSplitStrategy", 0, 0, 4},
    {"starSplitMaxQty", 50000, 0, 10000000},
    {"starSplitMinQty", 200, 0, 10000000},
    {"starSplitStepQty", 200, 0, 10000000},
    {"starBuyRiseIndex", 0, 0, 2},
    {"starSellRiseIndex", 0, 0, 2},
    {"buyInputType", 0, 0, 1},
    {"sellInputType", 0, 0, 1},
    {"lockMinutes", 30, 0, 1000},
    {"defaultBuyMode", 0, 0, 1},
    {"defaultSellMode", 0, 0, 1},
    {"quoteFollowsOrder", 0, 0, 1},
    {"orderFollowsQuote", 0, 0, 1},
    {"fontSizeLevel", 0, 0, 2},
    {"languageIndex", 0, 0, 2},
    {"uiPageMode", 2, anyMinimum, anyMaximum},
};

// Where the record holds it, from the record's own declaration.
int memberOf(const TradeParm& record, const QByteArray& name)
{
#define MEMBER(field)                                                                              \
    if (name == #field)                                                                            \
    return record.field
    MEMBER(defaultBuyPrice);
    MEMBER(defaultSellPrice);
    MEMBER(defaultBuyQty);
    MEMBER(defaultSellQty);
    MEMBER(afterOrderForm);
    MEMBER(clickBookQty);
    MEMBER(inputBoxState);
    MEMBER(confirmCancel);
    MEMBER(confirmOrder);
    MEMBER(orderSuccessDialog);
    MEMBER(splitEnabled);
    MEMBER(splitBaseQty);
    MEMBER(splitStrategy);
    MEMBER(splitMaxQty);
    MEMBER(splitMinQty);
    MEMBER(splitStepQty);
    MEMBER(starSplitEnabled);
    MEMBER(starSplitBaseQty);
    MEMBER(starSplitStrategy);
    MEMBER(starSplitMaxQty);
    MEMBER(starSplitMinQty);
    MEMBER(starSplitStepQty);
    MEMBER(starBuyRiseIndex);
    MEMBER(starSellRiseIndex);
    MEMBER(buyInputType);
    MEMBER(sellInputType);
    MEMBER(lockMinutes);
    MEMBER(defaultBuyMode);
    MEMBER(defaultSellMode);
    MEMBER(quoteFollowsOrder);
    MEMBER(orderFollowsQuote);
    MEMBER(fontSizeLevel);
    MEMBER(languageIndex);
    MEMBER(uiPageMode);
#undef MEMBER
    return -99;
}

const Field& field(const QByteArray& name) { return *RecordFields::find(QLatin1String(name)); }

} // namespace

class tst_RecordStore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void everyFieldOfTheRecordIsInTheTable();
    void defaults_data();
    void defaults();
    void defaultKeysAreDistinct();
    void keepsEveryInteger_data();
    void keepsEveryInteger();
    void keepsTextsArraysAndReservedBytes();
    void missingFieldsGetDefaults();
    void missingFileIsNoProblem();
    void keepsForeignFields();

    void setsAside_data();
    void setsAside();
    void losesOnlyTheWrongValue_data();
    void losesOnlyTheWrongValue();
    void losesOnlyTheWrongElements();
    void namesEveryWrongValue();
    void acceptsWhatLiesInRange_data();
    void acceptsWhatLiesInRange();
    void neverReplacesAnEarlierSetAside();
    void keepsAWrongFileOnce();
    void savesNothingBeforeAWrongFileIsKept();
    void readingLeavesTheFileAlone_data();
    void readingLeavesTheFileAlone();
    void setsAsideAnUnreadableThing();
    void doesNotOverwriteWhatItCouldNotMove();

    void refusesToWriteWhatItWouldNotRead();
    void reportsAFullDisk();
    void reportsAConfigThatIsAFile();
    void takesInterfaceSettingsAlong();
    void removesLeftovers();

    void coreStoresOnCommit();
    void coreReportsFailure();
    void coreStoresEditsWithoutCommit();

private:
    void write(const QByteArray& content) const;
    QByteArray content() const;
    QJsonObject object() const { return QJsonDocument::fromJson(content()).object(); }
    QStringList configFiles() const;

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<DataDirectory> m_directory;
    std::unique_ptr<RecordStore> m_store;
};

void tst_RecordStore::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_directory = std::make_unique<DataDirectory>(m_home->path());
    m_store = std::make_unique<RecordStore>(*m_directory);
}

void tst_RecordStore::write(const QByteArray& content) const
{
    writeFile(m_home->filePath(QStringLiteral("config/trade_parameters.json")), content);
}

QByteArray tst_RecordStore::content() const
{
    return contentOf(m_home->filePath(QStringLiteral("config/trade_parameters.json")));
}

QStringList tst_RecordStore::configFiles() const
{
    return QDir(m_home->filePath(QStringLiteral("config")))
        .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name);
}

void tst_RecordStore::everyFieldOfTheRecordIsInTheTable()
{
    // Side by side without a gap or an overlap, from the first byte to the last.
    std::size_t next = 0;
    for (const Field& row : RecordFields::all()) {
        QCOMPARE(row.offset, next);
        const std::size_t size = row.kind == Kind::Integer ? 4
            : row.kind == Kind::Text                       ? sizeof(std::string)
                                                           : 1;
        next += size * std::size_t(row.count);
    }
    QCOMPARE(next, sizeof(TradeParm));
    QCOMPARE(RecordFields::all().size(), 41);
}

void tst_RecordStore::defaults_data()
{
    QTest::addColumn<int>("preset");
    for (const IntegerExpectation& row : integers)
        QTest::newRow(row.name) << row.preset;
}

void tst_RecordStore::defaults()
{
    QFETCH(int, preset);
    const OwnedRecord record;
    QCOMPARE(memberOf(record.get(), QTest::currentDataTag()), preset);
}

void tst_RecordStore::defaultKeysAreDistinct()
{
    const OwnedRecord record;
    for (const char* const name : {"stockShortcuts", "creditShortcuts"}) {
        QSet<QString> keys;
        for (int i = 0; i < 13; ++i)
            keys.insert(RecordFields::text(record.get(), field(name), i));
        QCOMPARE(keys.size(), 13);
        QVERIFY(!keys.contains(QString()));
        QVERIFY(!keys.contains(QStringLiteral("F5")));
        QVERIFY(!keys.contains(QStringLiteral("F12")));
        for (const QString& key : keys) {
            const QKeySequence sequence(key, QKeySequence::NativeText);
            QCOMPARE(sequence.count(), 1);
            QCOMPARE(sequence.toString(QKeySequence::NativeText), key);
        }
    }
    QCOMPARE(RecordFields::text(record.get(), field("stockShortcuts"), 0), keyText("Ctrl+B"));
    QCOMPARE(RecordFields::text(record.get(), field("defaultPage"), 0), QStringLiteral("ptmr"));
    QCOMPARE(record.get().starBuyRiseChoices[0], 1);
    QCOMPARE(record.get().starBuyRiseChoices[1], 2);
    QCOMPARE(record.get().starSellRiseChoices[2], 5);
}

void tst_RecordStore::keepsEveryInteger_data()
{
    QTest::addColumn<int>("value");
    for (const IntegerExpectation& row : integers) {
        for (const int value : {row.minimum, row.maximum, row.minimum + 1})
            QTest::addRow("%s=%d", row.name, value) << value;
    }
}

void tst_RecordStore::keepsEveryInteger()
{
    QFETCH(int, value);
    const QByteArray name = QByteArray(QTest::currentDataTag()).split('=').first();
    OwnedRecord record;
    RecordFields::setInteger(record.get(), field(name), 0, value);
    QCOMPARE(memberOf(record.get(), name), value);
    QCOMPARE(m_store->save(record), QString());

    const QJsonValue stored = object().value(QString::fromLatin1(name));
    QVERIFY(stored.isDouble());
    QCOMPARE(stored.toDouble(), double(value));

    OwnedRecord loaded;
    QVERIFY(m_store->load(loaded).isClean());
    QCOMPARE(memberOf(loaded.get(), name), value);
    QVERIFY(loaded == record);
}

void tst_RecordStore::keepsTextsArraysAndReservedBytes()
{
    OwnedRecord record;
    for (int i = 0; i < 13; ++i) {
        RecordFields::setText(record.get(), field("stockShortcuts"), i,
                              QStringLiteral("键 %1 \"\\ é").arg(i));
        RecordFields::setText(record.get(), field("creditShortcuts"), i,
                              QString(i * 20, QLatin1Char('k')));
    }
    RecordFields::setText(record.get(), field("defaultPage"), 0, QStringLiteral("zjgp"));
    for (int i = 0; i < 3; ++i) {
        record.get().starBuyRiseChoices[i] = i;
        record.get().starSellRiseChoices[i] = 100 - i;
    }
    for (int i = 0; i < 4; ++i)
        record.get().reservedA[i] = char(i - 2);
    for (int i = 0; i < 72; ++i)
        record.get().reservedB[i] = char(i * 3);
    QCOMPARE(m_store->save(record), QString());

    const QJsonObject file = object();
    QCOMPARE(file.value(QStringLiteral("stockShortcuts")).toArray().at(7).toString(),
             QStringLiteral("键 7 \"\\ é"));
    QCOMPARE(file.value(QStringLiteral("reservedA")).toString(), QStringLiteral("feff0001"));
    QCOMPARE(file.value(QStringLiteral("defaultPage")).toString(), QStringLiteral("zjgp"));
    QVERIFY(content().contains("键 7"));
    QVERIFY2(content().count('\n') > 41, "a line for each field");

    OwnedRecord loaded;
    const RecordStore::LoadReport report = m_store->load(loaded);
    QVERIFY2(report.isClean(), qPrintable(report.message()));
    for (int i = 0; i < 13; ++i) {
        QCOMPARE(RecordFields::text(loaded.get(), field("stockShortcuts"), i),
                 QStringLiteral("键 %1 \"\\ é").arg(i));
        QCOMPARE(RecordFields::text(loaded.get(), field("creditShortcuts"), i).size(), i * 20);
    }
    QCOMPARE(loaded.get().starBuyRiseChoices[2], 2);
    QCOMPARE(loaded.get().starSellRiseChoices[2], 98);
    QCOMPARE(loaded.get().reservedA[0], char(-2));
    QCOMPARE(loaded.get().reservedB[71], char(213));
    QVERIFY(loaded == record);
}

void tst_RecordStore::missingFieldsGetDefaults()
{
    write("{\"lockMinutes\": 7}");
    OwnedRecord record;
    record.get().splitBaseQty = 1;
    QVERIFY(m_store->load(record).isClean());
    QCOMPARE(record.get().lockMinutes, 7);
    QCOMPARE(record.get().splitBaseQty, 10000);
    QCOMPARE(record.get().uiPageMode, 2);
    QCOMPARE(RecordFields::text(record.get(), field("creditShortcuts"), 1), keyText("Alt+S"));
}

void tst_RecordStore::missingFileIsNoProblem()
{
    OwnedRecord record;
    record.get().lockMinutes = 7;
    const RecordStore::LoadReport report = m_store->load(record);
    QVERIFY(report.isClean());
    QCOMPARE(report.message(), QString());
    QCOMPARE(record.get().lockMinutes, 30);
    QVERIFY2(!QFileInfo::exists(m_home->filePath(QStringLiteral("config"))),
             "reading creates nothing");
}

void tst_RecordStore::keepsForeignFields()
{
    write(
        R"({"lockMinutes": 7, "theme": {"name": "夜", "sizes": [1, 2.5]}, "later": 9007199254740991})");
    OwnedRecord record;
    QVERIFY(m_store->load(record).isClean());
    record.get().lockMinutes = 8;
    QCOMPARE(m_store->save(record), QString());
    QCOMPARE(m_store->save(record), QString());
    const QJsonObject file = object();
    QCOMPARE(file.value(QStringLiteral("lockMinutes")).toInt(), 8);
    QCOMPARE(
        file.value(QStringLiteral("theme")).toObject().value(QStringLiteral("name")).toString(),
        QStringLiteral("夜"));
    QCOMPARE(
        file.value(QStringLiteral("theme")).toObject().value(QStringLiteral("sizes")).toArray(),
        (QJsonArray{1, 2.5}));
    QVERIFY(content().contains("9007199254740991"));
}

void tst_RecordStore::setsAside_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("told");
    QTest::newRow("empty") << QByteArray() << QStringList{QStringLiteral("0")};
    QTest::newRow("cut short") << QByteArray("{\"lockMinutes\": 7,") << QStringList();
    QTest::newRow("no object") << QByteArray("[1, 2]") << QStringList{QStringLiteral("JSON")};
    QTest::newRow("binary") << QByteArray("\0\x01\xff\xfe", 4) << QStringList();
}

void tst_RecordStore::losesOnlyTheWrongValue_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("told");

    const auto wrong = [](const char* tag, const char* text, const char* name, const char* value) {
        QTest::newRow(tag) << QByteArray(text)
                           << QStringList{QString::fromUtf8(name), QString::fromUtf8(value)};
    };
    wrong("text for a number", R"({"lockMinutes": "7"})", "lockMinutes", "\"7\"");
    wrong("flag as true", R"({"confirmOrder": true})", "confirmOrder", "true");
    wrong("fraction", R"({"splitMaxQty": 100.5})", "splitMaxQty", "100.5");
    wrong("null", R"({"splitMaxQty": null})", "splitMaxQty", "null");
    wrong("object for a number", R"({"splitMinQty": {}})", "splitMinQty", "{}");
    wrong("array for a number", R"({"splitMinQty": [1]})", "splitMinQty", "[1]");
    wrong("beyond 32 bits", R"({"uiPageMode": 2147483648})", "uiPageMode", "2147483648");
    wrong("number for a text", R"({"defaultPage": 1})", "defaultPage", "1");
    wrong("unknown page", R"({"defaultPage": "main"})", "defaultPage", "\"main\"");
    wrong("text for a list", R"({"stockShortcuts": "F1"})", "stockShortcuts", "\"F1\"");
    wrong("short list", R"({"starBuyRiseChoices": [1, 2]})", "starBuyRiseChoices", "[1,2]");
    wrong("long list", R"({"starBuyRiseChoices": [1, 2, 3, 4]})", "starBuyRiseChoices", "4]");
    wrong("reserved digits", R"({"reservedA": "0011zz22"})", "reservedA", "0011zz22");
    wrong("reserved length", R"({"reservedA": "001122"})", "reservedA", "001122");
    for (const IntegerExpectation& row : integers) {
        for (const qint64 value : {qint64(row.minimum) - 1, qint64(row.maximum) + 1}) {
            QTest::addRow("%s=%lld", row.name, value)
                << QByteArray("{\"" + QByteArray(row.name) + "\": " + QByteArray::number(value)
                              + "}")
                << QStringList{QLatin1String(row.name), QString::number(value)};
        }
    }
}

void tst_RecordStore::setsAside()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, told);
    write(text);
    OwnedRecord record;
    record.get().lockMinutes = 3;
    const RecordStore::LoadReport report = m_store->load(record);
    QVERIFY(!report.isClean());
    QCOMPARE(report.problems.size(), 1);
    for (const QString& part : told)
        QVERIFY2(report.problems.first().contains(part), qPrintable(report.problems.first()));

    // The dated name lies beside the old one and holds every byte.
    QCOMPARE(configFiles().size(), 1);
    const QRegularExpression dated(QStringLiteral(
        "^trade_parameters\\.\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d\\.bad\\.json$"));
    QVERIFY2(dated.match(configFiles().first()).hasMatch(), qPrintable(configFiles().first()));
    QCOMPARE(report.setAside, m_home->filePath(QStringLiteral("config/") + configFiles().first()));
    QVERIFY(QFile::exists(report.setAside));
    QCOMPARE(contentOf(report.setAside), text);
    QVERIFY(report.message().contains(report.setAside));
    QVERIFY(record == OwnedRecord());

    // A save starts a new file and leaves the other alone.
    QCOMPARE(m_store->save(record), QString());
    QCOMPARE(configFiles().size(), 2);
    QVERIFY(m_store->load(record).isClean());
}

void tst_RecordStore::losesOnlyTheWrongValue()
{
    QFETCH(QByteArray, text);
    QFETCH(const QStringList, told);
    // Another field of the same file, and one that the client does not know.
    const bool isFontSize = text.contains("fontSizeLevel");
    text.chop(1);
    text += isFontSize ? R"(, "languageIndex": 2, "theme": "夜"})"
                       : R"(, "fontSizeLevel": 2, "theme": "夜"})";
    write(text);
    OwnedRecord record;
    record.get().splitBaseQty = 3;
    const RecordStore::LoadReport report = m_store->load(record);
    QCOMPARE(report.problems.size(), 1);
    for (const QString& part : told)
        QVERIFY2(report.problems.first().contains(part), qPrintable(report.problems.first()));
    OwnedRecord expected;
    (isFontSize ? expected.get().languageIndex : expected.get().fontSizeLevel) = 2;
    QVERIFY(record == expected);

    // The file as it was is kept, and stays until something is saved.
    QCOMPARE(configFiles().size(), 2);
    const QRegularExpression dated(QStringLiteral(
        "^trade_parameters\\.\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d\\.bad\\.json$"));
    QVERIFY2(dated.match(configFiles().first()).hasMatch(), qPrintable(configFiles().first()));
    QCOMPARE(report.setAside, m_home->filePath(QStringLiteral("config/") + configFiles().first()));
    QCOMPARE(contentOf(report.setAside), text);
    QCOMPARE(content(), text);
    QVERIFY(report.message().contains(report.setAside));
    QVERIFY(report.message().contains(report.problems.first()));

    QCOMPARE(m_store->save(record), QString());
    QCOMPARE(configFiles().size(), 2);
    QCOMPARE(contentOf(report.setAside), text);
    QCOMPARE(object().value(QStringLiteral("theme")).toString(), QStringLiteral("夜"));
    OwnedRecord again;
    QVERIFY(m_store->load(again).isClean());
    QVERIFY(again == expected);
}

void tst_RecordStore::losesOnlyTheWrongElements()
{
    write(R"({"starBuyRiseChoices": [101, 8, -1], "starSellRiseChoices": [7, "x", 9],
              "creditShortcuts": ["A","B","C","D","E","F","G","H","I","J","K","L",5],
              "stockShortcuts": ["a",null,"c","d","e","f","g","h","i","j","k","l","m"]})");
    OwnedRecord record;
    const RecordStore::LoadReport report = m_store->load(record);
    QStringList names;
    for (const QString& problem : report.problems)
        names += problem.section(QLatin1Char(' '), 0, 0);
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("starBuyRiseChoices[0] starBuyRiseChoices[2] starSellRiseChoices[1] "
                            "stockShortcuts[1] creditShortcuts[12]"));
    const auto percentages = [](const std::int32_t* choices) {
        return QVector<int>{choices[0], choices[1], choices[2]};
    };
    QCOMPARE(percentages(record.get().starBuyRiseChoices), (QVector<int>{1, 8, 5}));
    QCOMPARE(percentages(record.get().starSellRiseChoices), (QVector<int>{7, 2, 9}));
    const auto keys = [&record](const char* name) {
        QStringList texts;
        for (int i = 0; i < 13; ++i)
            texts += RecordFields::text(record.get(), field(name), i);
        return texts.join(QLatin1Char(' '));
    };
    QCOMPARE(keys("stockShortcuts"),
             QStringLiteral("a %1 c d e f g h i j k l m").arg(keyText("Ctrl+S")));
    QCOMPARE(keys("creditShortcuts"),
             QStringLiteral("A B C D E F G H I J K L %1").arg(keyText("Alt+2")));
}

void tst_RecordStore::namesEveryWrongValue()
{
    write(R"({"lockMinutes": 1001, "confirmOrder": 2, "splitMinQty": 5})");
    OwnedRecord record;
    const RecordStore::LoadReport report = m_store->load(record);
    QCOMPARE(report.problems.size(), 2);
    QVERIFY(report.message().contains(QStringLiteral("lockMinutes")));
    QVERIFY(report.message().contains(QStringLiteral("1001")));
    QVERIFY(report.message().contains(QStringLiteral("confirmOrder")));
    QVERIFY(!report.message().contains(QStringLiteral("splitMinQty")));
}

void tst_RecordStore::acceptsWhatLiesInRange_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("whole number with a point") << QByteArray(R"({"lockMinutes": 7.0})");
    QTest::newRow("exponent") << QByteArray(R"({"lockMinutes": 1e1})");
    QTest::newRow("sell page") << QByteArray(R"({"defaultPage": "ptmc"})");
    QTest::newRow("capital digits") << QByteArray(R"({"reservedA": "00FFaa10"})");
    QTest::newRow("empty object") << QByteArray("{}");
}

void tst_RecordStore::acceptsWhatLiesInRange()
{
    QFETCH(QByteArray, text);
    write(text);
    OwnedRecord record;
    const RecordStore::LoadReport report = m_store->load(record);
    QVERIFY2(report.isClean(), qPrintable(report.message()));
    QCOMPARE(content(), text);
}

void tst_RecordStore::neverReplacesAnEarlierSetAside()
{
    OwnedRecord record;
    QSet<QString> names;
    for (int i = 0; i < 8; ++i) {
        write("broken " + QByteArray::number(i));
        names.insert(m_store->load(record).setAside);
    }
    QCOMPARE(names.size(), 8);
    QCOMPARE(configFiles().size(), 8);
    QSet<QByteArray> contents;
    for (const QString& name : names)
        contents.insert(contentOf(name));
    QCOMPARE(contents.size(), 8);
}

void tst_RecordStore::keepsAWrongFileOnce()
{
    write(R"({"lockMinutes": 7, "splitMinQty": -5})");
    OwnedRecord record;
    const QString first = m_store->load(record).setAside;
    QVERIFY(QFileInfo::exists(first));
    const RecordStore::LoadReport second = RecordStore(*m_directory).load(record);
    QCOMPARE(second.problems.size(), 1);
    QCOMPARE(second.setAside, first);
    QCOMPARE(configFiles().size(), 2);

    write(R"({"lockMinutes": 8, "splitMinQty": -5})");
    QVERIFY(m_store->load(record).setAside != first);
    QCOMPARE(configFiles().size(), 3);
}

void tst_RecordStore::savesNothingBeforeAWrongFileIsKept()
{
    const QByteArray text = R"({"lockMinutes": 7, "splitMinQty": -5})";
    write(text);
    OwnedRecord record;
    RecordStore::LoadReport report;
    QString failure;
    {
        const QString config = m_home->filePath(QStringLiteral("config"));
        const Unprivileged user({m_home->path(), config, m_directory->recordFile()});
        const ReadOnly locked(config);
        report = m_store->load(record);
        failure = m_store->save(record);
    }
    QCOMPARE(report.problems.size(), 1);
    QCOMPARE(report.setAside, QString());
    QCOMPARE(record.get().lockMinutes, 7);
    QVERIFY2(failure.contains(m_store->fileName()), qPrintable(failure));
    QCOMPARE(content(), text);

    // As soon as a copy can be kept, saving works.
    QCOMPARE(m_store->save(record), QString());
    QCOMPARE(configFiles().size(), 2);
    QCOMPARE(contentOf(m_home->filePath(QStringLiteral("config/") + configFiles().first())), text);
}

void tst_RecordStore::readingLeavesTheFileAlone_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("right") << QByteArray(R"({"lockMinutes": 7})");
    QTest::newRow("a wrong value") << QByteArray(R"({"lockMinutes": -7})");
    QTest::newRow("no JSON") << QByteArray("broken");
}

void tst_RecordStore::readingLeavesTheFileAlone()
{
    QFETCH(const QByteArray, text);
    write(text);
    OwnedRecord record;
    const RecordStore::LoadReport report = m_store->read(record);
    QCOMPARE(report.isClean(), text.contains(" 7}"));
    QCOMPARE(report.setAside, QString());
    QVERIFY(!report.message().contains(QStringLiteral("无法移走")));
    QVERIFY(!report.message().contains(QStringLiteral("副本")));
    TradeCore silent(*m_directory, TradeCore::Storage::None);
    QCOMPARE(silent.load().isClean(), report.isClean());
    QCOMPARE(configFiles(), QStringList{QStringLiteral("trade_parameters.json")});
    QCOMPARE(content(), text);
}

void tst_RecordStore::setsAsideAnUnreadableThing()
{
    QVERIFY(QDir().mkpath(m_home->filePath(QStringLiteral("config/trade_parameters.json/inside"))));
    OwnedRecord record;
    const RecordStore::LoadReport report = m_store->load(record);
    QVERIFY(!report.isClean());
    QVERIFY(QFileInfo(report.setAside + QStringLiteral("/inside")).isDir());
    QCOMPARE(m_store->save(record), QString());
    QVERIFY(m_store->load(record).isClean());
}

void tst_RecordStore::doesNotOverwriteWhatItCouldNotMove()
{
    write("broken");
    OwnedRecord record;
    RecordStore::LoadReport report;
    QString failure;
    {
        const QString config = m_home->filePath(QStringLiteral("config"));
        const Unprivileged user({m_home->path(), config, m_directory->recordFile()});
        const ReadOnly locked(config);
        report = m_store->load(record);
        failure = m_store->save(record);
    }
    QVERIFY(!report.isClean());
    QCOMPARE(report.setAside, QString());
    QVERIFY(!failure.isEmpty());
    QCOMPARE(content(), QByteArray("broken"));

    // As soon as it can be moved, saving works.
    QCOMPARE(m_store->save(record), QString());
    QCOMPARE(configFiles().size(), 2);
}

void tst_RecordStore::refusesToWriteWhatItWouldNotRead()
{
    OwnedRecord record;
    QCOMPARE(m_store->save(record), QString());
    const QByteArray before = content();
    record.get().splitMaxQty = -1;
    const QString failure = m_store->save(record);
    QVERIFY2(failure.contains(QStringLiteral("splitMaxQty")), qPrintable(failure));
    QVERIFY(failure.contains(QStringLiteral("-1")));
    QCOMPARE(content(), before);
}

void tst_RecordStore::reportsAFullDisk()
{
    OwnedRecord record;
    QCOMPARE(m_store->save(record), QString());
    const QByteArray before = content();
    QVERIFY(before.size() > 600);

    // A file may not grow beyond a part of the record: writing fails in its middle.
    struct rlimit limit = {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &limit), 0);
    struct rlimit tight = limit;
    tight.rlim_cur = 512;
    auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &tight), 0);
    record.get().lockMinutes = 31;
    const QString failure = m_store->save(record);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
    std::signal(SIGXFSZ, handler);

    QVERIFY2(failure.contains(m_store->fileName()), qPrintable(failure));
    QCOMPARE(content(), before);
    QCOMPARE(configFiles(), QStringList{QStringLiteral("trade_parameters.json")});
    QCOMPARE(m_store->save(record), QString());
    QCOMPARE(object().value(QStringLiteral("lockMinutes")).toInt(), 31);
}

void tst_RecordStore::reportsAConfigThatIsAFile()
{
    const QString config = m_home->filePath(QStringLiteral("config"));
    writeFile(config, "");
    OwnedRecord record;
    QVERIFY(m_store->load(record).isClean());
    const QString failure = m_store->save(record);
    QVERIFY2(failure.contains(config), qPrintable(failure));
    QCOMPARE(QFileInfo(config).size(), qint64(0));
}

void tst_RecordStore::takesInterfaceSettingsAlong()
{
    const QString early = m_home->filePath(QStringLiteral("system_settings.ini"));
    QCOMPARE(m_directory->settingsFile(), early);
    writeFile(early, "[UI]\nscale=150\n");
    QCOMPARE(m_store->save(OwnedRecord()), QString());
    QCOMPARE(m_directory->settingsFile(),
             m_home->filePath(QStringLiteral("config/system_settings.ini")));
    QVERIFY(!QFileInfo::exists(early));
    QCOMPARE(QFileInfo(m_directory->settingsFile()).size(), qint64(15));
}

void tst_RecordStore::removesLeftovers()
{
    QCOMPARE(m_store->save(OwnedRecord()), QString());
    const QStringList stay{QStringLiteral("system_settings.ini"),
                           QStringLiteral("trade_parameters.2024-01-01_00-00-00.bad.json"),
                           QStringLiteral("trade_parameters.json"),
                           QStringLiteral("trade_parameters.json.backup")};
    const QStringList go{QStringLiteral("trade_parameters.2024-01-01_00-00-00.bad.json.aBcDeF"),
                         QStringLiteral("trade_parameters.json.aBcDeF")};
    for (const QString& name : stay + go)
        writeFile(m_home->filePath(QStringLiteral("config/") + name), "some content");
    m_store->removeLeftovers();
    QCOMPARE(configFiles(), stay);
}

void tst_RecordStore::coreStoresOnCommit()
{
    TradeCore core(*m_directory);
    QVERIFY(core.load().isClean());
    QSignalSpy committed(&core, &TradeCore::committed);
    KivoTrade::ITrade& trade = core;
    trade.GetTradeParm()->lockMinutes = 45;
    QVERIFY(content().isEmpty());
    trade.SaveTradeParm();
    QCOMPARE(committed.count(), 1);
    QCOMPARE(object().value(QStringLiteral("lockMinutes")).toInt(), 45);

    TradeCore again(*m_directory);
    QVERIFY(again.load().isClean());
    QCOMPARE(again.GetTradeParm()->lockMinutes, 45);
}

void tst_RecordStore::coreReportsFailure()
{
    const QString config = m_home->filePath(QStringLiteral("config"));
    writeFile(config, "in the way");
    TradeCore core(*m_directory);
    core.load();
    QSignalSpy failed(&core, &TradeCore::storingFailed);
    QSignalSpy committed(&core, &TradeCore::committed);
    core.GetTradeParm()->lockMinutes = 45;
    core.SaveTradeParm();
    QCOMPARE(failed.count(), 1);
    QCOMPARE(committed.count(), 1);
    QCOMPARE(core.GetTradeParm()->lockMinutes, 45);
    QVERIFY(!core.storeIfChanged().isEmpty());
    QVERIFY(QFile::remove(config));
    QCOMPARE(core.storeIfChanged(), QString());
    QCOMPARE(object().value(QStringLiteral("lockMinutes")).toInt(), 45);
}

void tst_RecordStore::coreStoresEditsWithoutCommit()
{
    TradeCore core(*m_directory);
    core.load();
    QCOMPARE(core.storeIfChanged(), QString());
    QVERIFY2(content().isEmpty(), "nothing changed, nothing written");
    core.GetTradeParm()->languageIndex = 2;
    QCOMPARE(core.storeIfChanged(), QString());
    QCOMPARE(object().value(QStringLiteral("languageIndex")).toInt(), 2);

    TradeCore silent(*m_directory, TradeCore::Storage::None);
    silent.load();
    silent.GetTradeParm()->languageIndex = 1;
    silent.SaveTradeParm();
    QCOMPARE(silent.storeIfChanged(), QString());
    QCOMPARE(object().value(QStringLiteral("languageIndex")).toInt(), 2);
}

TRADECONFIG_TEST_MAIN(tst_RecordStore)
#include "tst_RecordStore.moc"
