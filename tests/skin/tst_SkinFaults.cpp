#include "libskin/SkinLibrary.h"
#include "support/MessageCapture.h"
#include "support/TemporarySkin.h"
#include "support/TestMain.h"
#include "tradeConfig/skin/CSkin.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <QJsonArray>
#include <QPainter>
#include <QRandomGenerator>

#include <functional>

using CorvelSkin::CSkin;
using CorvelSkin::SkinLibrary;
using CorvelSkin::SkinProblem;

namespace {

using Damage = std::function<void(TemporarySkin&)>;

struct Row {
    const char* name;
    Damage damage;
    const char* file; ///< how the reported file ends
    const char* key;
    const char* reason; ///< what the reason holds
};

QJsonObject imageEntry(const QJsonValue& file, const QJsonValue& size, const QJsonValue& frames)
{
    return {{QStringLiteral("file"), file},
            {QStringLiteral("size"), size},
            {QStringLiteral("frames"), frames}};
}

QJsonObject fontEntry(const QJsonValue& families, const QJsonValue& pixelSize,
                      const QJsonValue& weight)
{
    return {{QStringLiteral("families"), families},
            {QStringLiteral("pixelSize"), pixelSize},
            {QStringLiteral("weight"), weight}};
}

QByteArray png(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

Damage setting(const char* section, const char* key, const QJsonValue& value)
{
    return
        [=](TemporarySkin& skin) { skin.set(QLatin1String(section), QLatin1String(key), value); };
}

Damage colour(const QJsonValue& value) { return setting("colours", "SwitchBorder", value); }
Damage font(const QJsonValue& value) { return setting("fonts", "Switch", value); }
Damage image(const QJsonValue& value) { return setting("images", "win_normal", value); }

Damage file(const char* name, const QByteArray& bytes)
{
    return [=](TemporarySkin& skin) { skin.write(QLatin1String(name), bytes); };
}

Damage removing(const char* name)
{
    return [=](TemporarySkin& skin) { QVERIFY(QFile::remove(skin.file(QLatin1String(name)))); };
}

const QString maximize = QStringLiteral("images/maximize.svg");
const QJsonArray families{QStringLiteral("sans-serif")};
const QJsonArray stripSize{42, 14};

const QVector<Row>& partlyBad()
{
    const QJsonValue absent(QJsonValue::Undefined);
    const QJsonValue text(QStringLiteral("three"));
    static const QVector<Row> rows{
        {"colour absent", colour(absent), "skin.json", "SwitchBorder", "absent"},
        {"colour a number", colour(3), "skin.json", "SwitchBorder", "#RRGGBB"},
        {"colour a name", colour(QStringLiteral("red")), "skin.json", "SwitchBorder", "#RRGGBB"},
        {"colour short", colour(QStringLiteral("#123")), "skin.json", "SwitchBorder", "#RRGGBB"},
        {"colour no hex", colour(QStringLiteral("#12345G")), "skin.json", "SwitchBorder",
         "#RRGGBB"},
        {"colour signed", colour(QStringLiteral("#+12345")), "skin.json", "SwitchBorder",
         "#RRGGBB"},
        {"colour null", colour(QJsonValue::Null), "skin.json", "SwitchBorder", "#RRGGBB"},
        {"font absent", font(absent), "skin.json", "Switch", "absent"},
        {"font a text", font(text), "skin.json", "Switch", "object"},
        {"no families", font(fontEntry(QJsonArray(), 13, 400)), "skin.json", "Switch", "families"},
        {"families a text", font(fontEntry(text, 13, 400)), "skin.json", "Switch", "families"},
        {"family a number", font(fontEntry(QJsonArray{1}, 13, 400)), "skin.json", "Switch",
         "family"},
        {"pixel size absent", font(fontEntry(families, absent, 400)), "skin.json", "Switch",
         "pixelSize"},
        {"pixel size 0", font(fontEntry(families, 0, 400)), "skin.json", "Switch", "pixelSize"},
        {"pixel size 201", font(fontEntry(families, 201, 400)), "skin.json", "Switch", "pixelSize"},
        {"pixel size 12.5", font(fontEntry(families, 12.5, 400)), "skin.json", "Switch",
         "pixelSize"},
        {"weight 450", font(fontEntry(families, 13, 450)), "skin.json", "Switch", "weight"},
        {"weight a text", font(fontEntry(families, 13, text)), "skin.json", "Switch", "weight"},
        {"image absent", image(absent), "skin.json", "win_normal", "absent"},
        {"image a text", image(maximize), "skin.json", "win_normal", "object"},
        {"no file", image(imageEntry(absent, stripSize, 3)), "skin.json", "win_normal", "file"},
        {"file a number", image(imageEntry(1, stripSize, 3)), "skin.json", "win_normal", "file"},
        {"file above", image(imageEntry(QStringLiteral("images/../../x.svg"), stripSize, 3)),
         "skin.json", "win_normal", "inside"},
        {"file elsewhere", image(imageEntry(QStringLiteral("/x.svg"), stripSize, 3)), "skin.json",
         "win_normal", "inside"},
        {"file compiled in", image(imageEntry(QStringLiteral(":/x.svg"), stripSize, 3)),
         "skin.json", "win_normal", "inside"},
        {"size a number", image(imageEntry(maximize, 42, 3)), "skin.json", "win_normal", "size"},
        {"size of three", image(imageEntry(maximize, QJsonArray{42, 14, 1}, 3)), "skin.json",
         "win_normal", "size"},
        {"size 0", image(imageEntry(maximize, QJsonArray{0, 14}, 3)), "skin.json", "win_normal",
         "size"},
        {"size too large", image(imageEntry(maximize, QJsonArray{42, 4097}, 3)), "skin.json",
         "win_normal", "size"},
        {"frames 0", image(imageEntry(maximize, stripSize, 0)), "skin.json", "win_normal",
         "frames"},
        {"frames a text", image(imageEntry(maximize, stripSize, text)), "skin.json", "win_normal",
         "frames"},
        {"frames do not divide", image(imageEntry(maximize, QJsonArray{43, 14}, 3)), "skin.json",
         "win_normal", "3 frames do not divide the width 43"},
        {"frames do not divide the file", image(imageEntry(maximize, absent, 4)), "maximize.svg",
         "win_normal", "4 frames do not divide the width 42"},
        {"frames do not divide the pixels",
         [](TemporarySkin& skin) {
             skin.write(QStringLiteral("x.png"), png(40, 14));
             image(imageEntry(QStringLiteral("x.png"), stripSize, 3))(skin);
         },
         "x.png", "win_normal", "3 frames do not divide the bitmap's 40 pixels"},
        {"image missing", removing("images/maximize.svg"), "maximize.svg", "win_normal", "missing"},
        {"image a folder", image(imageEntry(QStringLiteral("images"), stripSize, 3)), "images",
         "win_normal", "cannot be read"},
        {"drawing empty", file("images/maximize.svg", {}), "maximize.svg", "win_normal",
         "not an SVG drawing"},
        {"drawing no XML", file("images/maximize.svg", "\x89PNG\r\n"), "maximize.svg", "win_normal",
         "not an SVG drawing"},
        {"drawing cut off", file("images/maximize.svg", "<svg width=\"42\" height=\"14\"><g>"),
         "maximize.svg", "win_normal", "not an SVG drawing"},
        {"drawing a page", file("images/maximize.svg", "<html><body/></html>"), "maximize.svg",
         "win_normal", "not an SVG drawing"},
        {"bitmap broken",
         [](TemporarySkin& skin) {
             skin.write(QStringLiteral("x.png"), png(42, 14).left(40));
             image(imageEntry(QStringLiteral("x.png"), stripSize, 3))(skin);
         },
         "x.png", "win_normal", "not a PNG bitmap"},
        {"bitmap no PNG",
         [](TemporarySkin& skin) {
             skin.write(QStringLiteral("x.png"), "GIF89a");
             image(imageEntry(QStringLiteral("x.png"), stripSize, 3))(skin);
         },
         "x.png", "win_normal", "not a PNG bitmap"},
        {"denser bitmap broken",
         [](TemporarySkin& skin) {
             skin.write(QStringLiteral("x.png"), png(42, 14));
             skin.write(QStringLiteral("x@2x.png"), "no bitmap");
             image(imageEntry(QStringLiteral("x.png"), stripSize, 3))(skin);
         },
         "x.png", "win_normal", "x@2x.png"},
        {"palette role unknown", setting("palette", "Windoww", QStringLiteral("#123456")),
         "skin.json", "Windoww", "role"},
        {"palette colour bad", setting("palette", "Window", 1), "skin.json", "Window", "#RRGGBB"},
        {"disabled colour bad", setting("disabledPalette", "Text", 1), "skin.json", "Text",
         "#RRGGBB"},
        {"palette a list",
         [](TemporarySkin& skin) { skin.setSection(QStringLiteral("palette"), QJsonArray()); },
         "skin.json", "palette", "section"},
    };
    return rows;
}

/// What a skin draws for every key, as one picture.
QImage everythingDrawn()
{
    QImage sheet(400, 600, QImage::Format_ARGB32_Premultiplied);
    sheet.fill(Qt::transparent);
    QPainter painter(&sheet);
    CSkin* const skin = CSkin::Instance();
    double y = 0;
    for (const SkinKeys::KeyInfo& info : SkinKeys::colours) {
        skin->fillRect(painter, QRectF(0, y, 40, 10), QLatin1String(info.name));
        y += 10;
    }
    for (const SkinKeys::KeyInfo& info : SkinKeys::fonts) {
        skin->drawText(painter, QRectF(0, y, 390, 30), Qt::AlignLeft,
                       SkinKeys::Colour::PopupBorder(), QLatin1String(info.name),
                       QStringLiteral("系统设置 12.50"));
        y += 30;
    }
    for (const SkinKeys::KeyInfo& info : SkinKeys::images) {
        skin->drawImage(painter, QRectF(0, y, 60, 20), QLatin1String(info.name), 1, 0, false,
                        false);
        y += 20;
    }
    return sheet;
}

} // namespace

class tst_SkinFaults : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void partlyBadSkin_data();
    void partlyBadSkin();
    void theRestIsTheSkinsOwn();
    void everyFaultIsNamed();
    void sectionAbsent();
    void uselessSkin_data();
    void uselessSkin();
    void tableTooLarge();
    void imageBeyondReason();
    void problemsOfTheLastLoadOnly();
    void weightsOfFonts_data();
    void weightsOfFonts();
    void readTableFromBytes();
    void randomTables();
};

void tst_SkinFaults::initTestCase()
{
    const TemporarySkin untouched;
    QVERIFY(SkinLibrary::instance()->load(untouched.folder()));
    QCOMPARE(SkinLibrary::instance()->problems().size(), 0);
}

void tst_SkinFaults::partlyBadSkin_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < partlyBad().size(); ++row)
        QTest::newRow(partlyBad().at(row).name) << row;
}

void tst_SkinFaults::partlyBadSkin()
{
    QFETCH(const int, row);
    const Row& wanted = partlyBad().at(row);
    SkinLibrary* const library = SkinLibrary::instance();
    QVERIFY(library->load(QStringLiteral("light")));
    const QImage complete = everythingDrawn();
    const QPalette palette = library->palette();

    TemporarySkin skin;
    wanted.damage(skin);
    const MessageCapture log;
    QVERIFY(library->load(skin.folder()));
    QCOMPARE(library->problems().size(), 1);
    const SkinProblem problem = library->problems().first();
    QVERIFY2(problem.file.startsWith(skin.folder()), qPrintable(problem.file));
    QVERIFY2(problem.file.endsWith(QLatin1String(wanted.file)), qPrintable(problem.file));
    QCOMPARE(problem.key, QLatin1String(wanted.key));
    QVERIFY2(problem.reason.contains(QLatin1String(wanted.reason)), qPrintable(problem.reason));
    QCOMPARE(log.texts().size(), 1);
    for (const QString& part : {problem.file, problem.key, problem.reason})
        QVERIFY2(log.texts().first().contains(part), qPrintable(log.texts().first()));

    // The damaged skin is a copy of the light one, so the light one serves unseen.
    QCOMPARE(everythingDrawn(), complete);
    QCOMPARE(library->palette(), palette);
    QCOMPARE(log.texts().size(), 1);
}

void tst_SkinFaults::theRestIsTheSkinsOwn()
{
    const MessageCapture quiet;
    TemporarySkin skin;
    skin.set(QStringLiteral("colours"), QStringLiteral("PopupClient"), QStringLiteral("#123456"));
    skin.set(QStringLiteral("colours"), QStringLiteral("PopupBorder"), 7);
    skin.set(QStringLiteral("palette"), QStringLiteral("Base"), QStringLiteral("#654321"));
    SkinLibrary* const library = SkinLibrary::instance();
    QVERIFY(library->load(skin.folder()));
    QCOMPARE(library->currentName(), QStringLiteral("skin"));
    QCOMPARE(library->colour(QStringLiteral("PopupClient")), QColor(0x12, 0x34, 0x56));
    QCOMPARE(library->colour(QStringLiteral("PopupBorder")),
             QColor(shippedSkinTable(QStringLiteral("light"))[QLatin1String("colours")]
                        .toObject()[QLatin1String("PopupBorder")]
                        .toString()));
    QCOMPARE(library->palette().color(QPalette::Base), QColor(0x65, 0x43, 0x21));
}

void tst_SkinFaults::everyFaultIsNamed()
{
    const MessageCapture quiet;
    TemporarySkin skin;
    skin.set(QStringLiteral("colours"), QStringLiteral("PopupBorder"), 7);
    skin.set(QStringLiteral("colours"), QStringLiteral("PopupClient"), QJsonValue::Undefined);
    skin.set(QStringLiteral("fonts"), QStringLiteral("NavSwitch"), 1);
    QVERIFY(QFile::remove(skin.file(QStringLiteral("images/logo.svg"))));
    QVERIFY(SkinLibrary::instance()->load(skin.folder()));
    QStringList keys;
    for (const SkinProblem& problem : SkinLibrary::instance()->problems())
        keys << problem.key;
    keys.sort();
    QCOMPARE(keys,
             (QStringList{QStringLiteral("NavSwitch"), QStringLiteral("PopupBorder"),
                          QStringLiteral("PopupClient"), QStringLiteral("logo")}));
}

void tst_SkinFaults::sectionAbsent()
{
    const MessageCapture quiet;
    TemporarySkin skin;
    skin.write(QStringLiteral("skin.json"), "{}");
    QVERIFY(SkinLibrary::instance()->load(skin.folder()));
    // Twenty-three colours, three fonts, five images.
    QCOMPARE(SkinLibrary::instance()->problems().size(), 31);
    const QImage drawn = everythingDrawn();
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("light")));
    QCOMPARE(drawn, everythingDrawn());
}

void tst_SkinFaults::uselessSkin_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray("") << QStringLiteral("not a JSON table");
    QTest::newRow("text") << QByteArray("colours = none") << QStringLiteral("not a JSON table");
    QTest::newRow("cut off") << QByteArray("{\"colours\": {") << QStringLiteral("at byte 13");
    QTest::newRow("a list") << QByteArray("[]") << QStringLiteral("must be an object");
    QTest::newRow("binary") << QByteArray(100, '\0') << QStringLiteral("not a JSON table");
    QTest::newRow("deep") << QByteArray(100000, '[') << QStringLiteral("not a JSON table");
    QTest::newRow("no table") << QByteArray() << QStringLiteral("cannot be opened");
    QTest::newRow("a folder") << QByteArray("folder") << QStringLiteral("cannot be opened");
    QTest::newRow("no skin") << QByteArray("gone") << QStringLiteral("the folder is missing");
    QTest::newRow("no name") << QByteArray("nameless") << QStringLiteral("no skin was named");
}

void tst_SkinFaults::uselessSkin()
{
    QFETCH(const QByteArray, table);
    QFETCH(const QString, reason);
    SkinLibrary* const library = SkinLibrary::instance();
    QVERIFY(library->load(QStringLiteral("light")));
    const QImage light = everythingDrawn();
    QVERIFY(library->load(QStringLiteral("dark")));
    QVERIFY(everythingDrawn() != light);

    TemporarySkin skin;
    QString name = skin.folder();
    if (table.isNull() || table == "folder")
        QVERIFY(QFile::remove(skin.file(QStringLiteral("skin.json"))));
    else
        skin.write(QStringLiteral("skin.json"), table);
    if (table == "folder")
        QVERIFY(QDir().mkdir(skin.file(QStringLiteral("skin.json"))));
    if (table == "gone")
        QVERIFY(skin.remove());
    if (table == "nameless")
        name.clear();

    const MessageCapture log;
    QVERIFY(!library->load(name));
    QCOMPARE(library->problems().size(), 1);
    const SkinProblem problem = library->problems().first();
    QVERIFY2(problem.file.startsWith(name), qPrintable(problem.file));
    QCOMPARE(problem.key, QString());
    QVERIFY2(problem.reason.contains(reason), qPrintable(problem.reason));
    QCOMPARE(log.texts().size(), 1);
    QCOMPARE(library->currentName(), QStringLiteral("light"));
    QCOMPARE(everythingDrawn(), light);
}

void tst_SkinFaults::tableTooLarge()
{
    const MessageCapture quiet;
    TemporarySkin skin;
    skin.write(QStringLiteral("skin.json"), "{}" + QByteArray(1 << 20, ' '));
    QVERIFY(!SkinLibrary::instance()->load(skin.folder()));
    QVERIFY(SkinLibrary::instance()->problems().first().reason.contains(
        QStringLiteral("larger than 1048576 bytes")));

    // More than a byte array holds: a file with a hole takes no room on the disk.
    QVERIFY(QFile::resize(skin.file(QStringLiteral("skin.json")), 3LL << 30));
    QVERIFY(!SkinLibrary::instance()->load(skin.folder()));
    QCOMPARE(SkinLibrary::instance()->problems().size(), 1);
    QCOMPARE(SkinLibrary::instance()->problems().first().reason,
             QStringLiteral("the table is larger than 1048576 bytes"));
}

void tst_SkinFaults::imageBeyondReason()
{
    const MessageCapture quiet;
    TemporarySkin skin;
    // A header that promises 60000 by 60000 pixels.
    const QByteArray huge = QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000ea600000"
                                                "ea60080600000080d275420000000949444154789c63"
                                                "0000000100015eff7df9");
    skin.write(QStringLiteral("huge.png"), huge);
    skin.set(QStringLiteral("images"), QStringLiteral("logo"),
             imageEntry(QStringLiteral("huge.png"), QJsonArray{24, 24}, 1));
    skin.write(QStringLiteral("images/close.svg"), QByteArray((8 << 20) + 1, ' '));
    // Its size is said to be 0.
    QVERIFY(QFile::remove(skin.file(QStringLiteral("images/minimize.svg"))));
    QVERIFY(
        QFile::link(QStringLiteral("/dev/zero"), skin.file(QStringLiteral("images/minimize.svg"))));
    QVERIFY(SkinLibrary::instance()->load(skin.folder()));
    QStringList faults;
    for (const SkinProblem& problem : SkinLibrary::instance()->problems())
        faults << problem.key + QLatin1Char(' ') + problem.reason;
    faults.sort();
    QCOMPARE(faults,
             (QStringList{QStringLiteral("PanelClose the file is larger than 8388608 bytes"),
                          QStringLiteral("logo the bitmap is larger than 8192 pixels a side"),
                          QStringLiteral("win_minimize the file is larger than 8388608 bytes")}));
}

void tst_SkinFaults::problemsOfTheLastLoadOnly()
{
    const MessageCapture quiet;
    QVERIFY(!SkinLibrary::instance()->load(QStringLiteral("no such skin")));
    QCOMPARE(SkinLibrary::instance()->problems().size(), 1);
    QCOMPARE(SkinLibrary::instance()->problems().first().file, QStringLiteral("no such skin"));
    QVERIFY(!SkinLibrary::instance()->load(QStringLiteral("../skins/dark")));
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("dark")));
    QCOMPARE(SkinLibrary::instance()->problems().size(), 0);
}

void tst_SkinFaults::weightsOfFonts_data()
{
    QTest::addColumn<QJsonValue>("given");
    QTest::addColumn<int>("weight");
    QTest::newRow("100") << QJsonValue(100) << int(QFont::Thin);
    QTest::newRow("300") << QJsonValue(300) << int(QFont::Light);
    QTest::newRow("400") << QJsonValue(400) << int(QFont::Normal);
    QTest::newRow("600") << QJsonValue(600) << int(QFont::DemiBold);
    QTest::newRow("900") << QJsonValue(900) << int(QFont::Black);
    QTest::newRow("none") << QJsonValue(QJsonValue::Undefined) << int(QFont::Normal);
}

void tst_SkinFaults::weightsOfFonts()
{
    QFETCH(const QJsonValue, given);
    QFETCH(const int, weight);
    const QJsonObject table{
        {QStringLiteral("fonts"),
         QJsonObject{{QStringLiteral("Switch"), fontEntry(families, 13, given)}}}};
    QVector<SkinProblem> problems;
    const CorvelSkin::SkinTable read = CorvelSkin::readSkinTable(QJsonDocument(table).toJson(),
                                                                 QStringLiteral("table"), problems);
    QCOMPARE(problems.size(), 0);
    QCOMPARE(read.fonts.value(QStringLiteral("Switch")).weight, weight);
}

void tst_SkinFaults::readTableFromBytes()
{
    const QByteArray bytes = R"({
        "colours": {"A": "#10203040", "B": "#aBcDeF", "C": "blue"},
        "fonts": {"F": {"families": ["One", "Two"], "pixelSize": 20, "weight": 700}},
        "images": {"I": {"file": "./a//b.png", "size": [30, 10], "frames": 3}},
        "palette": {"Window": "#010203"},
        "other": 1
    })";
    QVector<SkinProblem> problems;
    const CorvelSkin::SkinTable table
        = CorvelSkin::readSkinTable(bytes, QStringLiteral("some.json"), problems);
    QCOMPARE(table.colours.size(), 2);
    QCOMPARE(table.colours.value(QStringLiteral("A")), QColor(0x20, 0x30, 0x40, 0x10));
    QCOMPARE(table.colours.value(QStringLiteral("B")), QColor(0xab, 0xcd, 0xef));
    const CorvelSkin::FontEntry font = table.fonts.value(QStringLiteral("F"));
    QCOMPARE(font.families, (QStringList{QStringLiteral("One"), QStringLiteral("Two")}));
    QCOMPARE(font.pixelSize, 20);
    QCOMPARE(font.weight, int(QFont::Bold));
    const CorvelSkin::ImageEntry image = table.images.value(QStringLiteral("I"));
    QCOMPARE(image.file, QStringLiteral("a/b.png"));
    QCOMPARE(image.size, QSize(30, 10));
    QCOMPARE(image.frames, 3);
    QCOMPARE(table.palette.value(QStringLiteral("Window")), QColor(1, 2, 3));
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().file, QStringLiteral("some.json"));
    QCOMPARE(problems.first().key, QStringLiteral("C"));
}

void tst_SkinFaults::randomTables()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    const QByteArray whole
        = QJsonDocument(shippedSkinTable(QStringLiteral("light"))).toJson(QJsonDocument::Compact);
    for (int round = 0; round < 500; ++round) {
        QByteArray bytes = whole;
        for (int change = random.bounded(1, 6); change > 0; --change)
            bytes[random.bounded(bytes.size())] = char(random.bounded(256));
        QVector<SkinProblem> problems;
        const CorvelSkin::SkinTable table
            = CorvelSkin::readSkinTable(bytes, QStringLiteral("table"), problems);
        // Whatever comes back is fit for use.
        for (const QColor& colour : table.colours)
            QVERIFY(colour.isValid());
        for (const CorvelSkin::FontEntry& font : table.fonts)
            QVERIFY(!font.families.isEmpty() && font.pixelSize >= 1 && font.pixelSize <= 200
                    && font.weight >= 0 && font.weight <= 99);
        for (const CorvelSkin::ImageEntry& image : table.images)
            QVERIFY(!image.file.isEmpty() && image.frames >= 1
                    && (image.size.isEmpty() || image.size.width() % image.frames == 0));
        for (const SkinProblem& problem : problems)
            QVERIFY(!problem.reason.isEmpty());
    }
}

TRADECONFIG_TEST_MAIN(tst_SkinFaults)
#include "tst_SkinFaults.moc"
