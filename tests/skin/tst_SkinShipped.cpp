#include "libskin/SkinLibrary.h"
#include "support/Contrast.h"
#include "support/Files.h"
#include "support/MessageCapture.h"
#include "support/TemporarySkin.h"
#include "support/TestMain.h"
#include "tradeConfig/skin/CSkin.h"
#include "tradeConfig/skin/SkinKeys.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QPainter>
#include <QProcess>
#include <QSet>

using CorvelSkin::CSkin;
using CorvelSkin::SkinLibrary;

namespace {

const QStringList& shippedSkins()
{
    static const QStringList names{QStringLiteral("dark"), QStringLiteral("light")};
    return names;
}

QImage canvas(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

bool isEmpty(const QImage& image) { return image == canvas(image.width(), image.height()); }

QImage drawnFrame(const QString& key, int count, int index)
{
    QImage image = canvas(28, 28);
    QPainter painter(&image);
    CSkin::Instance()->drawImage(painter, QRectF(0, 0, 28, 28), key, count, index, true, false);
    return image;
}

} // namespace

class tst_SkinShipped : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lightServesBeforeAnyLoad();
    void namesAreListed();
    void loadsWithoutProblems_data();
    void loadsWithoutProblems();
    void everyColour_data();
    void everyColour();
    void everyFont_data();
    void everyFont();
    void everyImage_data();
    void everyImage();
    void builtInLightIsTheShippedOne();
    void paletteFollowsTheTable_data();
    void paletteFollowsTheTable();
    void textIsReadable_data();
    void textIsReadable();
    void disabledTextIsReadable_data();
    void disabledTextIsReadable();
    void greyArrowIsSeen_data();
    void greyArrowIsSeen();
    void marksAreReadable_data();
    void marksAreReadable();
    void documentNamesEveryKey();
    void onlyTheServiceIsExported();
};

void tst_SkinShipped::lightServesBeforeAnyLoad()
{
    QCOMPARE(SkinLibrary::instance()->currentName(), QStringLiteral("light"));
    QCOMPARE(SkinLibrary::instance()->problems().size(), 0);
    const QJsonObject colours
        = shippedSkinTable(QStringLiteral("light"))[QLatin1String("colours")].toObject();
    QCOMPARE(SkinLibrary::instance()->colour(QStringLiteral("PopupClient")),
             QColor(colours[QLatin1String("PopupClient")].toString()));
    QVERIFY(!isEmpty(drawnFrame(QStringLiteral("logo"), 1, 0)));
}

void tst_SkinShipped::namesAreListed()
{
    QCOMPARE(SkinLibrary::instance()->names(), shippedSkins());
}

void tst_SkinShipped::loadsWithoutProblems_data()
{
    QTest::addColumn<QString>("skin");
    for (const QString& skin : shippedSkins())
        QTest::newRow(qUtf8Printable(skin)) << skin;
}

void tst_SkinShipped::loadsWithoutProblems()
{
    QFETCH(const QString, skin);
    const MessageCapture log;
    QVERIFY(SkinLibrary::instance()->load(skin));
    QCOMPARE(SkinLibrary::instance()->currentName(), skin);
    QCOMPARE(SkinLibrary::instance()->problems().size(), 0);
    QCOMPARE(log.texts(), QStringList());

    // By its folder it is the same skin.
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral(TRADECONFIG_SKINS_DIR "/") + skin
                                          + QLatin1Char('/')));
    QCOMPARE(SkinLibrary::instance()->currentName(), skin);
    QCOMPARE(SkinLibrary::instance()->problems().size(), 0);
}

template <std::size_t count> static void addRows(const SkinKeys::KeyInfo (&keys)[count])
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<QString>("key");
    for (const QString& skin : shippedSkins()) {
        for (const SkinKeys::KeyInfo& info : keys)
            QTest::addRow("%s %s", qUtf8Printable(skin), info.name)
                << skin << QString::fromLatin1(info.name);
    }
}

void tst_SkinShipped::everyColour_data() { addRows(SkinKeys::colours); }

void tst_SkinShipped::everyColour()
{
    QFETCH(const QString, skin);
    QFETCH(const QString, key);
    QVERIFY(SkinLibrary::instance()->load(skin));
    const QColor expected(
        shippedSkinTable(skin)[QLatin1String("colours")].toObject()[key].toString());
    QVERIFY(expected.isValid());

    const MessageCapture log;
    QImage image = canvas(3, 1);
    {
        QPainter painter(&image);
        CSkin::Instance()->fillRect(painter, QRectF(1, 0, 1, 1), key);
    }
    QCOMPARE(image.pixelColor(1, 0), expected);
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(image.pixelColor(2, 0).alpha(), 0);
    QCOMPARE(SkinLibrary::instance()->colour(key), expected);
    QCOMPARE(log.texts(), QStringList());
}

void tst_SkinShipped::everyFont_data() { addRows(SkinKeys::fonts); }

void tst_SkinShipped::everyFont()
{
    QFETCH(const QString, skin);
    QFETCH(const QString, key);
    QVERIFY(SkinLibrary::instance()->load(skin));
    const QJsonObject entry
        = shippedSkinTable(skin)[QLatin1String("fonts")].toObject()[key].toObject();

    const MessageCapture log;
    QFont font;
    QStringList families;
    for (const QJsonValue& family : entry[QLatin1String("families")].toArray())
        families << family.toString();
    font.setFamilies(families);
    font.setPixelSize(entry[QLatin1String("pixelSize")].toInt());
    font.setWeight(entry[QLatin1String("weight")].toInt() == 600 ? QFont::DemiBold : QFont::Normal);
    const QImage device = canvas(1, 1);
    const QSizeF size = CSkin::Instance()->textSize(const_cast<QImage*>(&device), key,
                                                    QStringLiteral("系统设置 Kivo 12.5"));
    QCOMPARE(size, QFontMetricsF(font, &device).size(0, QStringLiteral("系统设置 Kivo 12.5")));
    // The navigation list draws into rows of 20.
    QVERIFY2(size.height() <= 20.0, qPrintable(QString::number(size.height())));
    QCOMPARE(log.texts(), QStringList());
}

void tst_SkinShipped::everyImage_data() { addRows(SkinKeys::images); }

void tst_SkinShipped::everyImage()
{
    QFETCH(const QString, skin);
    QFETCH(const QString, key);
    QVERIFY(SkinLibrary::instance()->load(skin));
    const QJsonObject entry
        = shippedSkinTable(skin)[QLatin1String("images")].toObject()[key].toObject();
    const bool windowButton = key.startsWith(QLatin1String("win_"));
    const int frames = windowButton ? 3 : 1;

    const MessageCapture log;
    QCOMPARE(CSkin::Instance()->GetBitmapSize(key),
             QSizeF(entry[QLatin1String("size")][0].toDouble(),
                    entry[QLatin1String("size")][1].toDouble()));
    QVector<QImage> drawn;
    for (int index = 0; index < frames; ++index) {
        drawn << drawnFrame(key, frames, index);
        QVERIFY2(!isEmpty(drawn.last()), qPrintable(QString::number(index)));
        for (int earlier = 0; earlier < index; ++earlier)
            QVERIFY(drawn.at(earlier) != drawn.last());
    }
    QCOMPARE(log.texts(), QStringList());
}

void tst_SkinShipped::builtInLightIsTheShippedOne()
{
    const QString root = QStringLiteral(TRADECONFIG_SKINS_DIR "/light/");
    QDirIterator files(root, QDir::Files, QDirIterator::Subdirectories);
    int count = 0;
    while (files.hasNext()) {
        const QString name = files.next();
        const QByteArray shipped = contentOf(name);
        QVERIFY2(!shipped.isEmpty(), qPrintable(name));
        QCOMPARE(contentOf(QStringLiteral(":/libskin/skins/light/") + name.mid(root.size())),
                 shipped);
        ++count;
    }
    QCOMPARE(count, 24);
}

void tst_SkinShipped::paletteFollowsTheTable_data() { loadsWithoutProblems_data(); }

void tst_SkinShipped::paletteFollowsTheTable()
{
    QFETCH(const QString, skin);
    QVERIFY(SkinLibrary::instance()->load(skin));
    const QJsonObject entries = shippedSkinTable(skin)[QLatin1String("palette")].toObject();
    const QJsonObject disabled
        = shippedSkinTable(skin)[QLatin1String("disabledPalette")].toObject();
    const QPalette palette = SkinLibrary::instance()->palette();
    QCOMPARE(entries.size(), 20);
    QCOMPARE(palette.color(QPalette::Window), QColor(entries[QLatin1String("Window")].toString()));
    QCOMPARE(palette.color(QPalette::Inactive, QPalette::Base),
             QColor(entries[QLatin1String("Base")].toString()));
    QCOMPARE(palette.color(QPalette::Highlight),
             QColor(entries[QLatin1String("Highlight")].toString()));
    QCOMPARE(palette.color(QPalette::ToolTipText),
             QColor(entries[QLatin1String("ToolTipText")].toString()));
    QCOMPARE(palette.color(QPalette::Disabled, QPalette::ButtonText),
             QColor(disabled[QLatin1String("ButtonText")].toString()));
    QVERIFY(palette.color(QPalette::Disabled, QPalette::ButtonText)
            != palette.color(QPalette::ButtonText));
}

void tst_SkinShipped::textIsReadable_data()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("ground");
    const char* const pairs[][2] = {
        {"SwitchFgNormal", "SwitchBgNormal"},
        {"SwitchFgHover", "SwitchBgHover"},
        {"SwitchFgSelect", "SwitchBgSelect"},
        // One mode fills no items: their texts stand on the bar.
        {"SwitchFgNormal", "SwitchBackground"},
        {"SwitchFgNormal", "FrameClient"},
        {"SwitchFgHover", "SwitchBackground"},
        {"SwitchFgHover", "FrameClient"},
        {"SwitchFgSelect", "SwitchBackground"},
        {"SwitchFgSelect", "FrameClient"},
        {"NavSwitchFgNormal", "NavSwitchBgNormal"},
        {"NavSwitchFgHover", "NavSwitchBgHover"},
        {"NavSwitchFgSelect", "NavSwitchBgSelect"},
        {"NavSwitchFgNormal", "NavSwitchBg"},
        {"NavSwitchFgNormal", "NavSwitchBorder"},
        {"NavSwitchFgNormal", "NavSwitchBgHover"},
        {"NavSwitchFgSelect", "Window"},
        {"WindowText", "Window"},
        {"WindowText", "PopupClient"},
        {"WindowText", "PopupCaption"},
        {"WindowText", "FrameCaption"},
        {"Text", "Base"},
        {"Text", "AlternateBase"},
        {"PlaceholderText", "Base"},
        {"ButtonText", "Button"},
        {"HighlightedText", "Highlight"},
        {"Link", "Window"},
        {"ToolTipText", "ToolTipBase"},
    };
    for (const QString& skin : shippedSkins()) {
        for (const auto& pair : pairs)
            QTest::addRow("%s: %s on %s", qUtf8Printable(skin), pair[0], pair[1])
                << skin << QString::fromLatin1(pair[0]) << QString::fromLatin1(pair[1]);
    }
}

void tst_SkinShipped::textIsReadable()
{
    QFETCH(const QString, skin);
    QFETCH(const QString, text);
    QFETCH(const QString, ground);
    const QJsonObject table = shippedSkinTable(skin);
    const auto colour = [&table](const QString& key) {
        const QString own = table[QLatin1String("colours")].toObject()[key].toString();
        return QColor(own.isEmpty() ? table[QLatin1String("palette")].toObject()[key].toString()
                                    : own);
    };
    const double ratio = contrast(colour(text), colour(ground));
    QVERIFY2(ratio >= 4.5, qPrintable(QString::number(ratio)));
}

void tst_SkinShipped::disabledTextIsReadable_data()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<int>("text");
    QTest::addColumn<int>("ground");
    const struct {
        const char* name;
        QPalette::ColorRole text;
        QPalette::ColorRole ground;
    } pairs[] = {
        {"label", QPalette::WindowText, QPalette::Window},
        {"field", QPalette::Text, QPalette::Base},
        {"button", QPalette::ButtonText, QPalette::Button},
        {"selection", QPalette::HighlightedText, QPalette::Highlight},
    };
    for (const QString& skin : shippedSkins()) {
        for (const auto& pair : pairs)
            QTest::addRow("%s: %s", qUtf8Printable(skin), pair.name)
                << skin << int(pair.text) << int(pair.ground);
    }
}

void tst_SkinShipped::disabledTextIsReadable()
{
    QFETCH(const QString, skin);
    QFETCH(const int, text);
    QFETCH(const int, ground);
    QVERIFY(SkinLibrary::instance()->load(skin));
    const QPalette palette = SkinLibrary::instance()->palette();
    const double ratio = contrast(palette.color(QPalette::Disabled, QPalette::ColorRole(text)),
                                  palette.color(QPalette::Disabled, QPalette::ColorRole(ground)));
    QVERIFY2(ratio >= 3.0, qPrintable(QString::number(ratio)));
}

void tst_SkinShipped::greyArrowIsSeen_data() { loadsWithoutProblems_data(); }

void tst_SkinShipped::greyArrowIsSeen()
{
    QFETCH(const QString, skin);
    QVERIFY(SkinLibrary::instance()->load(skin));
    const auto colour
        = [](const char* key) { return SkinLibrary::instance()->colour(QString::fromLatin1(key)); };
    const QColor arrow = colour("SwitchFgDisable");
    // On the bar, and in the mode of images on the window.
    for (const QColor& ground : {colour("SwitchBackground"), colour("FrameClient"),
                                 SkinLibrary::instance()->palette().color(QPalette::Window)})
        QVERIFY2(contrast(arrow, ground) >= 3.0, qPrintable(ground.name()));
}

// The sheets' red and green are fixed, what is painted is a shade of them. No ground suits both:
// red reaches 4.0 on white and 5.3 on black, green 5.1 and 4.1.
void tst_SkinShipped::marksAreReadable_data()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<QString>("ground");
    QTest::addColumn<double>("red");
    QTest::addColumn<double>("green");
    QTest::newRow("light, field") << QStringLiteral("light") << QStringLiteral("Base") << 3.9
                                  << 4.5;
    QTest::newRow("light, tip") << QStringLiteral("light") << QStringLiteral("Window") << 3.7
                                << 4.5;
    QTest::newRow("dark, field") << QStringLiteral("dark") << QStringLiteral("Base") << 4.5 << 3.8;
    QTest::newRow("dark, tip") << QStringLiteral("dark") << QStringLiteral("Window") << 3.7 << 3.0;
}

void tst_SkinShipped::marksAreReadable()
{
    QFETCH(const QString, skin);
    QFETCH(const QString, ground);
    QFETCH(const double, red);
    QFETCH(const double, green);
    const QColor colour(
        shippedSkinTable(skin)[QLatin1String("palette")].toObject()[ground].toString());
    const double redRatio = contrast(QColor(255, 0, 0), colour);
    const double greenRatio = contrast(QColor(0, 128, 0), colour);
    QVERIFY2(redRatio >= red, qPrintable(QString::number(redRatio)));
    QVERIFY2(greenRatio >= green, qPrintable(QString::number(greenRatio)));
}

void tst_SkinShipped::documentNamesEveryKey()
{
    const QByteArray document = contentOf(QStringLiteral(TRADECONFIG_DOCS_DIR "/skin-format.md"));
    QVERIFY(!document.isEmpty());
    QStringList documented;
    for (const QByteArray& bytes : document.split('\n')) {
        const QString line = QString::fromUtf8(bytes).trimmed();
        for (const char* kind : {"` | colour |", "` | font |", "` | image |"}) {
            if (line.startsWith(QLatin1String("| `")) && line.contains(QLatin1String(kind)))
                documented << line;
        }
    }
    QStringList known;
    const auto add = [&known](const auto& keys, const char* kind) {
        for (const SkinKeys::KeyInfo& info : keys)
            known << QString::asprintf("| `%s` | %s | %s | %s |", info.name, kind, info.passedBy,
                                       info.role);
    };
    add(SkinKeys::colours, "colour");
    add(SkinKeys::fonts, "font");
    add(SkinKeys::images, "image");
    QCOMPARE(documented, known);
}

void tst_SkinShipped::onlyTheServiceIsExported()
{
#ifdef Q_OS_MACOS
    const QStringList listDefined{QStringLiteral("-g"), QStringLiteral("-U")};
#else
    const QStringList listDefined{QStringLiteral("-D"), QStringLiteral("--defined-only")};
#endif
    QProcess nm;
    nm.start(QStringLiteral("nm"),
             listDefined + QStringList{QStringLiteral("-C"), QStringLiteral(SKIN_LIBRARY_FILE)});
    QVERIFY2(nm.waitForFinished(), qPrintable(nm.errorString()));
    QCOMPARE(nm.exitCode(), 0);

    const QString service = QStringLiteral("CorvelSkin::CSkin::");
    QSet<QString> operations;
    for (const QString& line :
         QString::fromUtf8(nm.readAllStandardOutput()).split(QLatin1Char('\n'))) {
        const QString symbol = line.mid(line.indexOf(QLatin1Char(' '), 18) + 1);
        if (symbol.isEmpty())
            continue;
        QVERIFY2(symbol.contains(QLatin1String("CorvelSkin::")), qPrintable(line));
        if (symbol.startsWith(service))
            operations.insert(symbol.mid(service.size()));
    }
    const QSet<QString> expected{
        QStringLiteral("Instance()"),
        QStringLiteral("fillRect(QPainter&, QRectF, QString)"),
        QStringLiteral("drawRect(QPainter&, QRectF, QString, Qt::PenStyle, double)"),
        QStringLiteral("drawLine(QPainter&, QString, QPointF, QPointF, Qt::PenStyle, double)"),
        QStringLiteral("drawText(QPainter&, QRectF, int, QString, QString, QString)"),
        QStringLiteral("textSize(QPaintDevice*, QString, QString)"),
        QStringLiteral("drawImage(QPainter&, QRectF, QString, int, int, bool, bool)"),
        QStringLiteral("GetBitmapSize(QString)"),
    };
    QCOMPARE(operations, expected);
}

TRADECONFIG_TEST_MAIN(tst_SkinShipped)
#include "tst_SkinShipped.moc"
