#include "libskin/SkinLibrary.h"
#include "support/Files.h"
#include "support/TemporarySkin.h"
#include "support/TestMain.h"

#include <QDir>
#include <QJsonArray>

using CorvelSkin::SkinLibrary;
using CorvelSkin::SkinProblem;

Q_DECLARE_METATYPE(QJsonValue)

/// What the library tells of skins beside drawing with them.
class tst_SkinCheck : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void shippedSkinsAreClean_data();
    void shippedSkinsAreClean();
    void findsWhatNobodyReads_data();
    void findsWhatNobodyReads();
    void findsAllAtOnce();
    void findsWhatLoadingFinds();
    void checkingLoadsNothing();
    void titles_data();
    void titles();
    void wrongTitles_data();
    void wrongTitles();
    void addedFolders();
    void addedFoldersHideNothing();
    void currentIsWhatWasAskedFor();
};

void tst_SkinCheck::shippedSkinsAreClean_data()
{
    QTest::addColumn<QString>("folder");
    for (const char* const name : {"light", "dark"})
        QTest::newRow(name) << QStringLiteral(TRADECONFIG_SKINS_DIR "/") + QLatin1String(name);
}

void tst_SkinCheck::shippedSkinsAreClean()
{
    QFETCH(const QString, folder);
    for (const SkinProblem& problem : SkinLibrary::instance()->check(folder))
        QTest::qFail(qPrintable(problem.key + problem.reason), __FILE__, __LINE__);
}

void tst_SkinCheck::findsWhatNobodyReads_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("reason");
    const QString images = QStringLiteral("images");
    QTest::newRow("colour") << QStringLiteral("colours") << QStringLiteral("SwitchBordr")
                            << QJsonValue(QStringLiteral("#112233"))
                            << QStringLiteral("no such key");
    QTest::newRow("font") << QStringLiteral("fonts") << QStringLiteral("Swich")
                          << QJsonValue(QJsonObject{
                                 {QStringLiteral("families"), QJsonArray{QStringLiteral("Sans")}},
                                 {QStringLiteral("pixelSize"), 13}})
                          << QStringLiteral("no such key");
    QTest::newRow("image") << images << QStringLiteral("Logo")
                           << QJsonValue(QJsonObject{
                                  {QStringLiteral("file"), QStringLiteral("images/logo.svg")}})
                           << QStringLiteral("no such key");
    QTest::newRow("field") << images << QStringLiteral("logo")
                           << QJsonValue(QJsonObject{
                                  {QStringLiteral("file"), QStringLiteral("images/logo.svg")},
                                  {QStringLiteral("frame"), 1}})
                           << QStringLiteral("no such field \"frame\"");
}

void tst_SkinCheck::findsWhatNobodyReads()
{
    QFETCH(const QString, section);
    QFETCH(const QString, key);
    QFETCH(const QJsonValue, value);
    QFETCH(const QString, reason);
    TemporarySkin skin;
    skin.set(section, key, value);
    const QVector<SkinProblem> problems = SkinLibrary::instance()->check(skin.folder());
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().file, skin.file(QStringLiteral("skin.json")));
    QCOMPARE(problems.first().key, key);
    QCOMPARE(problems.first().reason, reason);
    QVERIFY(SkinLibrary::instance()->load(skin.folder()));
    QVERIFY2(SkinLibrary::instance()->problems().isEmpty(), "it does no harm");
}

void tst_SkinCheck::findsAllAtOnce()
{
    TemporarySkin skin;
    skin.setSection(QStringLiteral("colors"), QJsonObject());
    skin.set(QStringLiteral("colours"), QStringLiteral("PopupClient"), QStringLiteral("blue"));
    skin.set(QStringLiteral("fonts"), QStringLiteral("Swich"), QJsonValue());
    QStringList keys;
    for (const SkinProblem& problem : SkinLibrary::instance()->check(skin.folder()))
        keys += problem.key;
    keys.sort();
    keys.removeDuplicates();
    QCOMPARE(keys,
             (QStringList{QStringLiteral("PopupClient"), QStringLiteral("Swich"),
                          QStringLiteral("colors")}));
}

void tst_SkinCheck::findsWhatLoadingFinds()
{
    const QTemporaryDir home;
    const QString missing = home.filePath(QStringLiteral("nothing"));
    QCOMPARE(SkinLibrary::instance()->check(missing).size(), 1);
    QCOMPARE(SkinLibrary::instance()->check(missing).first().file, missing);
    writeFile(home.filePath(QStringLiteral("broken/skin.json")), "{");
    QCOMPARE(SkinLibrary::instance()->check(home.filePath(QStringLiteral("broken"))).size(), 1);
}

void tst_SkinCheck::checkingLoadsNothing()
{
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("dark")));
    const TemporarySkin skin;
    SkinLibrary::instance()->check(skin.folder());
    QCOMPARE(SkinLibrary::instance()->current(), QStringLiteral("dark"));
}

void tst_SkinCheck::titles_data()
{
    QTest::addColumn<QString>("skin");
    QTest::addColumn<QString>("title");
    QTest::newRow("zh_CN") << QStringLiteral("light") << QStringLiteral("浅色");
    QTest::newRow("zh_TW") << QStringLiteral("light") << QStringLiteral("淺色");
    QTest::newRow("en_US") << QStringLiteral("dark") << QStringLiteral("Dark");
    QTest::newRow("fr_FR") << QStringLiteral("dark") << QStringLiteral("dark");
}

void tst_SkinCheck::titles()
{
    QFETCH(const QString, skin);
    QFETCH(const QString, title);
    QCOMPARE(SkinLibrary::instance()->title(skin, QString::fromLatin1(QTest::currentDataTag())),
             title);
}

void tst_SkinCheck::wrongTitles_data()
{
    QTest::addColumn<QJsonValue>("name");
    QTest::newRow("text") << QJsonValue(QStringLiteral("Night"));
    QTest::newRow("number") << QJsonValue(QJsonObject{{QStringLiteral("zh_CN"), 3}});
    QTest::newRow("nothing") << QJsonValue(QJsonObject{{QStringLiteral("zh_CN"), QString()}});
}

void tst_SkinCheck::wrongTitles()
{
    QFETCH(const QJsonValue, name);
    TemporarySkin skin;
    skin.setSection(QStringLiteral("name"), name);
    QVERIFY2(SkinLibrary::instance()->load(skin.folder()), "the rest can be used");
    QCOMPARE(SkinLibrary::instance()->problems().size(), 1);
    QCOMPARE(SkinLibrary::instance()->problems().first().key, QStringLiteral("name"));
    QCOMPARE(SkinLibrary::instance()->title(skin.folder(), QStringLiteral("zh_CN")),
             QStringLiteral("skin"));
}

void tst_SkinCheck::addedFolders()
{
    const QTemporaryDir home;
    SkinLibrary* const library = SkinLibrary::instance();
    library->addFolder(home.filePath(QStringLiteral("skins")));
    QVERIFY(!library->names().contains(QStringLiteral("mine")));
    writeFile(home.filePath(QStringLiteral("skins/mine/skin.json")),
              R"({"name": {"zh_CN": "我的"}, "colours": {"PopupClient": "#123456"}})");
    writeFile(home.filePath(QStringLiteral("skins/no skin/other.json")), "{}");
    QCOMPARE(
        library->names(),
        (QStringList{QStringLiteral("dark"), QStringLiteral("light"), QStringLiteral("mine")}));
    QCOMPARE(library->title(QStringLiteral("mine"), QStringLiteral("zh_CN")),
             QStringLiteral("我的"));
    QVERIFY(library->load(QStringLiteral("mine")));
    QCOMPARE(library->colour(QStringLiteral("PopupClient")), QColor(0x12, 0x34, 0x56));
}

void tst_SkinCheck::addedFoldersHideNothing()
{
    const QTemporaryDir home;
    writeFile(home.filePath(QStringLiteral("dark/skin.json")),
              R"({"colours": {"PopupClient": "#123456"}})");
    SkinLibrary::instance()->addFolder(home.path());
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("dark")));
    QVERIFY(SkinLibrary::instance()->colour(QStringLiteral("PopupClient"))
            != QColor(0x12, 0x34, 0x56));
}

void tst_SkinCheck::currentIsWhatWasAskedFor()
{
    const TemporarySkin skin;
    SkinLibrary* const library = SkinLibrary::instance();
    QVERIFY(library->load(skin.folder()));
    QCOMPARE(library->current(), skin.folder());
    QVERIFY(library->load(QStringLiteral("dark")));
    QCOMPARE(library->current(), QStringLiteral("dark"));
    QVERIFY(!library->load(skin.file(QStringLiteral("nothing"))));
    QCOMPARE(library->current(), QStringLiteral("light"));
}

TRADECONFIG_TEST_MAIN(tst_SkinCheck)
#include "tst_SkinCheck.moc"
