#include "client/DataDirectory.h"
#include "client/LanguageMenu.h"
#include "support/Files.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include <QAbstractButton>
#include <QAction>
#include <QSettings>
#include <QSignalSpy>

#include <memory>

/// The choice of a language in the client's window.
class tst_LanguageMenu : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void languagesByTheirOwnNames();
    void marksTheStoredOne_data();
    void marksTheStoredOne();
    void followsTheDialog();
    void storesAndOffersTheRestart_data();
    void storesAndOffersTheRestart();
    void keepsTheScale();
    void missingRestarter();
    void theSameAgain();
    void tellsWhatCannotBeStored();
    void restarts();

private:
    void store(const QByteArray& content) const
    {
        writeFile(m_home->filePath(QStringLiteral("config/system_settings.ini")), content);
    }
    QString stored(const QString& key) const
    {
        return QSettings(m_directory->settingsFile(), QSettings::IniFormat).value(key).toString();
    }
    static QString marked(const LanguageMenu& menu);

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<DataDirectory> m_directory;
};

void tst_LanguageMenu::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_directory = std::make_unique<DataDirectory>(m_home->path());
    QVERIFY(m_directory->makeConfigDirectory());
}

QString tst_LanguageMenu::marked(const LanguageMenu& menu)
{
    QStringList names;
    for (const QAction* const action : menu.actions()) {
        if (action->isChecked())
            names += action->text();
    }
    return names.join(QLatin1Char('|'));
}

void tst_LanguageMenu::languagesByTheirOwnNames()
{
    const LanguageMenu menu(*m_directory);
    QStringList names;
    for (const QAction* const action : menu.actions())
        names += action->text();
    QCOMPARE(names,
             (QStringList{QStringLiteral("简体中文"), QStringLiteral("繁體中文"),
                          QStringLiteral("English")}));
}

void tst_LanguageMenu::marksTheStoredOne_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("name");
    QTest::newRow("none") << QByteArray() << QStringLiteral("简体中文");
    QTest::newRow("unknown") << QByteArray("[UI]\nlanguage=fr_FR\n") << QStringLiteral("简体中文");
    QTest::newRow("zh_CN") << QByteArray("[UI]\nlanguage=zh_CN\n") << QStringLiteral("简体中文");
    QTest::newRow("zh_TW") << QByteArray("[UI]\nlanguage=zh_TW\n") << QStringLiteral("繁體中文");
    QTest::newRow("en_US") << QByteArray("[UI]\nlanguage=en_US\n") << QStringLiteral("English");
}

void tst_LanguageMenu::marksTheStoredOne()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, name);
    store(content);
    const LanguageMenu menu(*m_directory);
    QCOMPARE(marked(menu), name);
}

void tst_LanguageMenu::followsTheDialog()
{
    LanguageMenu menu(*m_directory);
    store("[UI]\nlanguage=en_US\n");
    menu.popup(QPoint());
    QCOMPARE(marked(menu), QStringLiteral("English"));
    menu.close();
}

void tst_LanguageMenu::storesAndOffersTheRestart_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<int>("index");
    QTest::newRow("zh_CN") << QByteArray("en_US") << 0;
    QTest::newRow("zh_TW") << QByteArray("zh_CN") << 1;
    QTest::newRow("en_US") << QByteArray("zh_TW") << 2;
}

void tst_LanguageMenu::storesAndOffersTheRestart()
{
    QFETCH(const QByteArray, before);
    QFETCH(const int, index);
    const QString code = QString::fromLatin1(QTest::currentDataTag());
    store("[UI]\nlanguage=" + before + '\n');
    LanguageMenu menu(*m_directory);
    const QSignalSpy chosen(&menu, &LanguageMenu::chosen);
    const ModalAnswer later = ModalAnswer::pressing(QMessageBox::No);
    menu.findChild<QAction*>(QStringLiteral("action_language_") + code)->trigger();
    QVERIFY(later.came());
    QCOMPARE(later.text(), QStringLiteral("部分修改需要重启后生效，确定现在重启吗？"));
    QCOMPARE(stored(QStringLiteral("UI/language")), code);
    QCOMPARE(marked(menu), menu.actions().at(index)->text());
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.first().first().toInt(), index);
}

void tst_LanguageMenu::keepsTheScale()
{
    store("[UI]\nbad=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xf0zz)\nscale=175\nlanguage=zh_CN\n");
    LanguageMenu menu(*m_directory);
    const ModalAnswer later = ModalAnswer::pressing(QMessageBox::No);
    menu.findChild<QAction*>(QStringLiteral("action_language_en_US"))->trigger();
    QCOMPARE(stored(QStringLiteral("UI/language")), QStringLiteral("en_US"));
    QCOMPARE(stored(QStringLiteral("UI/scale")), QStringLiteral("175"));
}

void tst_LanguageMenu::missingRestarter()
{
    LanguageMenu menu(*m_directory);
    QStringList said;
    // One box after the other.
    std::unique_ptr<ModalAnswer> failure;
    const ModalAnswer now([&](QWidget* window) {
        auto* const box = qobject_cast<QMessageBox*>(window);
        failure = std::make_unique<ModalAnswer>(ModalAnswer::Action([&said](QWidget* next) {
            said += qobject_cast<QMessageBox*>(next)->text();
            next->close();
        }));
        box->button(QMessageBox::Yes)->click();
    });
    menu.findChild<QAction*>(QStringLiteral("action_language_en_US"))->trigger();
    QCOMPARE(
        said,
        QStringList{QStringLiteral("无法启动重启程序 %1。").arg(m_directory->restartProgram())});
}

void tst_LanguageMenu::theSameAgain()
{
    store("[UI]\nlanguage=zh_TW\n");
    LanguageMenu menu(*m_directory);
    const QSignalSpy chosen(&menu, &LanguageMenu::chosen);
    // Without a question: one would wait here for ever.
    menu.findChild<QAction*>(QStringLiteral("action_language_zh_TW"))->trigger();
    QCOMPARE(chosen.size(), 0);
    QCOMPARE(contentOf(m_directory->settingsFile()), QByteArray("[UI]\nlanguage=zh_TW\n"));
}

void tst_LanguageMenu::tellsWhatCannotBeStored()
{
    QVERIFY(QDir().mkpath(m_directory->settingsFile() + QStringLiteral("/in/the/way")));
    LanguageMenu menu(*m_directory);
    const QSignalSpy chosen(&menu, &LanguageMenu::chosen);
    const ModalAnswer failure = ModalAnswer::pressing(QMessageBox::Ok);
    menu.findChild<QAction*>(QStringLiteral("action_language_en_US"))->trigger();
    QVERIFY2(failure.text().contains(m_directory->settingsFile()), qPrintable(failure.text()));
    QCOMPARE(chosen.size(), 0);
    QCOMPARE(marked(menu), QStringLiteral("简体中文"));
}

// The last one: an application that was ended shows no more boxes.
void tst_LanguageMenu::restarts()
{
    const QString said = m_home->filePath(QStringLiteral("said"));
    writeFile(m_directory->restartProgram(), "#!/bin/sh\necho \"$@\" >'" + said.toUtf8() + "'\n");
    QVERIFY(QFile::setPermissions(m_directory->restartProgram(),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    LanguageMenu menu(*m_directory);
    QTimer::singleShot(0, &menu, [&menu] {
        const ModalAnswer now = ModalAnswer::pressing(QMessageBox::Yes);
        menu.findChild<QAction*>(QStringLiteral("action_language_en_US"))->trigger();
    });
    // Comes back although no window was closed.
    QCOMPARE(QCoreApplication::exec(), 0);
    QTRY_COMPARE(contentOf(said), QByteArray("jy\n"));
}

TRADECONFIG_TEST_MAIN(tst_LanguageMenu)
#include "tst_LanguageMenu.moc"
