#include "appearance/SkinSwitcher.h"
#include "client/SkinReport.h"
#include "libskin/SkinLibrary.h"
#include "support/Files.h"
#include "support/TemporarySkin.h"
#include "support/TestMain.h"

#include <QAction>
#include <QDir>
#include <QLocale>
#include <QMenu>
#include <QRegularExpression>
#include <QSignalSpy>

using CorvelSkin::SkinLibrary;
using CorvelSkin::SkinProblem;

/// The menu of the skins, and what the user hears of those that cannot be used.
class tst_SkinSwitcher : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(SkinLibrary::instance()->load(QStringLiteral("light"))); }

    void namesInTheLanguageOfTheInterface_data();
    void namesInTheLanguageOfTheInterface();
    void chooses();
    void skinFromAFolderIsListedAndMarked();
    void followsTheFolders();
    void refusesWhatCannotBeUsed();
    void reportsFileKeyAndReason();
    void everyReasonIsTranslated();

private:
    static QStringList listed(const QMenu& menu);
    static QString marked(const QMenu& menu);
};

QStringList tst_SkinSwitcher::listed(const QMenu& menu)
{
    QStringList texts;
    for (const QAction* const action : menu.actions())
        texts += action->text();
    return texts;
}

QString tst_SkinSwitcher::marked(const QMenu& menu)
{
    QStringList texts;
    for (const QAction* const action : menu.actions()) {
        if (action->isChecked())
            texts += action->text();
    }
    return texts.join(QLatin1Char('|'));
}

void tst_SkinSwitcher::namesInTheLanguageOfTheInterface_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::newRow("zh_CN") << QStringList{QStringLiteral("深色"), QStringLiteral("浅色")};
    QTest::newRow("zh_TW") << QStringList{QStringLiteral("深色"), QStringLiteral("淺色")};
    QTest::newRow("en_US") << QStringList{QStringLiteral("Dark"), QStringLiteral("Light")};
}

void tst_SkinSwitcher::namesInTheLanguageOfTheInterface()
{
    QFETCH(const QStringList, names);
    const QLocale before;
    QLocale::setDefault(QLocale(QString::fromLatin1(QTest::currentDataTag())));
    SkinSwitcher switcher;
    QMenu menu;
    switcher.fill(&menu);
    QLocale::setDefault(before);
    QCOMPARE(listed(menu), names);
    QCOMPARE(marked(menu), names.at(1));
}

void tst_SkinSwitcher::chooses()
{
    SkinSwitcher switcher;
    QMenu menu;
    switcher.fill(&menu);
    const QSignalSpy chosen(&switcher, &SkinSwitcher::chosen);
    menu.findChild<QAction*>(QStringLiteral("action_skin_dark"))->trigger();
    QCOMPARE(SkinLibrary::instance()->current(), QStringLiteral("dark"));
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.first().first().toString(), QStringLiteral("dark"));
}

void tst_SkinSwitcher::skinFromAFolderIsListedAndMarked()
{
    TemporarySkin skin;
    skin.setSection(QStringLiteral("name"),
                    QJsonObject{{QLocale().name(), QStringLiteral("Mine")}});
    QVERIFY(SkinLibrary::instance()->load(skin.folder()));
    SkinSwitcher switcher;
    QMenu menu;
    switcher.fill(&menu);
    QCOMPARE(menu.actions().size(), 3);
    QCOMPARE(marked(menu), QStringLiteral("Mine"));

    // It stays in the list.
    menu.findChild<QAction*>(QStringLiteral("action_skin_dark"))->trigger();
    menu.popup(QPoint());
    menu.close();
    QVERIFY(listed(menu).contains(QStringLiteral("Mine")));
    QCOMPARE(menu.actions().size(), 3);
    menu.actions().last()->trigger();
    QCOMPARE(SkinLibrary::instance()->current(), skin.folder());
}

void tst_SkinSwitcher::followsTheFolders()
{
    const QTemporaryDir home;
    SkinLibrary::instance()->addFolder(home.path());
    SkinSwitcher switcher;
    QMenu menu;
    switcher.fill(&menu);
    QCOMPARE(menu.actions().size(), 2);
    writeFile(home.filePath(QStringLiteral("later/skin.json")), "{}");
    menu.popup(QPoint());
    menu.close();
    QVERIFY(listed(menu).contains(QStringLiteral("later")));
}

void tst_SkinSwitcher::refusesWhatCannotBeUsed()
{
    const QTemporaryDir home;
    writeFile(home.filePath(QStringLiteral("broken/skin.json")), "{");
    SkinLibrary::instance()->addFolder(home.path());
    QVERIFY(SkinLibrary::instance()->load(QStringLiteral("dark")));
    SkinSwitcher switcher;
    QMenu menu;
    switcher.fill(&menu);
    QStringList told;
    connect(&switcher, &SkinSwitcher::refused, this,
            [&told](const QString& title, const QVector<SkinProblem>& problems) {
                told = SkinReport::refusal(title, problems).split(QLatin1Char('\n'));
            });
    const QSignalSpy chosen(&switcher, &SkinSwitcher::chosen);
    menu.findChild<QAction*>(QStringLiteral("action_skin_broken"))->trigger();
    QCOMPARE(told.size(), 2);
    QCOMPARE(told.first(), QStringLiteral("无法使用皮肤 broken："));
    QVERIFY2(told.last().startsWith(home.filePath(QStringLiteral("broken/skin.json: 不是 JSON"))),
             qPrintable(told.last()));
    QCOMPARE(chosen.size(), 0);
    QCOMPARE(SkinLibrary::instance()->current(), QStringLiteral("dark"));
    menu.popup(QPoint());
    menu.close();
    QVERIFY(menu.findChild<QAction*>(QStringLiteral("action_skin_dark"))->isChecked());
}

void tst_SkinSwitcher::reportsFileKeyAndReason()
{
    const SkinProblem inTheTable{QStringLiteral("/a/skin.json"), QStringLiteral("logo"),
                                 QStringLiteral("\"size\" must be a whole number from 1 to 4096")};
    const SkinProblem ofTheWhole{QStringLiteral("/b"), QString(),
                                 QStringLiteral("the folder is missing")};
    QCOMPARE(SkinReport::lines({inTheTable, ofTheWhole}),
             (QStringList{QStringLiteral("/a/skin.json: logo: “size”必须是 1 到 4096 的整数"),
                          QStringLiteral("/b: 文件夹不存在")}));
}

// Found in the sources of the skin service: a text with a space in it is a reason.
void tst_SkinSwitcher::everyReasonIsTranslated()
{
    const QRegularExpression literal(
        QStringLiteral(R"re(QStringLiteral\("((?:[^"\\]|\\.)*\w (?:[^"\\]|\\.)*)"\))re"));
    const QDir sources(QStringLiteral(TRADECONFIG_SKINS_DIR "/.."));
    int count = 0;
    for (const QString& name : sources.entryList({QStringLiteral("*.cpp")})) {
        const QString text = QString::fromUtf8(contentOf(sources.filePath(name)));
        for (auto found = literal.globalMatch(text); found.hasNext(); ++count) {
            QString reason = found.next().captured(1);
            reason.replace(QStringLiteral("\\\""), QStringLiteral("\""));
            reason.replace(QRegularExpression(QStringLiteral("%\\d")), QStringLiteral("7"));
            const QString line = SkinReport::lines({{QString(), QString(), reason}}).value(0);
            QVERIFY2(line != reason, qPrintable(reason));
        }
    }
    QVERIFY(count > 20);
}

TRADECONFIG_TEST_MAIN(tst_SkinSwitcher)
#include "tst_SkinSwitcher.moc"
