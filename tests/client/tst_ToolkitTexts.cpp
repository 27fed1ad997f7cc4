#include "client/StartSettings.h"
#include "support/TestMain.h"

#include <QCommandLineParser>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTranslator>

#include <memory>

/// The toolkit's own texts in the languages of the interface.
class tst_ToolkitTexts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void buttons_data();
    void buttons();
    void contextMenu_data();
    void contextMenu();
    void help_data();
    void help();
    void fileDialog_data();
    void fileDialog();
    void keysKeepTheirNames_data();
    void keysKeepTheirNames();

private:
    static void speak(const QString& language);
};

void tst_ToolkitTexts::speak(const QString& language)
{
    StartSettings settings;
    settings.language = language;
    settings.installTranslations(qApp);
}

void tst_ToolkitTexts::cleanup()
{
    qDeleteAll(qApp->findChildren<QTranslator*>(QString(), Qt::FindDirectChildrenOnly));
}

void tst_ToolkitTexts::buttons_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("zh_CN") << QStringList{QStringLiteral("确定"), QStringLiteral("是(&Y)"),
                                          QStringLiteral("否(&N)"), QStringLiteral("取消")};
    QTest::newRow("zh_TW") << QStringList{QStringLiteral("確定"), QStringLiteral("是(&Y)"),
                                          QStringLiteral("否(&N)"), QStringLiteral("取消")};
    QTest::newRow("en_US") << QStringList{QStringLiteral("OK"), QStringLiteral("&Yes"),
                                          QStringLiteral("&No"), QStringLiteral("Cancel")};
}

void tst_ToolkitTexts::buttons()
{
    QFETCH(const QStringList, texts);
    speak(QString::fromLatin1(QTest::currentDataTag()));
    QMessageBox box;
    QStringList found;
    for (const auto button :
         {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel})
        found += box.addButton(button)->text();
    QCOMPARE(found, texts);
}

void tst_ToolkitTexts::contextMenu_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("zh_CN") << QStringList{QStringLiteral("撤消(&U)"), QStringLiteral("剪切(&T)"),
                                          QStringLiteral("复制(&C)"), QStringLiteral("全选")};
    QTest::newRow("zh_TW") << QStringList{QStringLiteral("復原(&U)"), QStringLiteral("剪下(&T)"),
                                          QStringLiteral("複製(&C)"), QStringLiteral("全部選擇")};
    QTest::newRow("en_US") << QStringList{QStringLiteral("&Undo"), QStringLiteral("Cu&t"),
                                          QStringLiteral("&Copy"), QStringLiteral("Select All")};
}

void tst_ToolkitTexts::contextMenu()
{
    QFETCH(const QStringList, texts);
    speak(QString::fromLatin1(QTest::currentDataTag()));
    QLineEdit edit;
    const std::unique_ptr<QMenu> menu(edit.createStandardContextMenu());
    QStringList found;
    for (const QAction* const action : menu->actions())
        found += action->text().section(QLatin1Char('\t'), 0, 0);
    for (const QString& text : texts)
        QVERIFY2(found.contains(text), qPrintable(found.join(QLatin1Char('|'))));
}

void tst_ToolkitTexts::help_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("zh_CN") << QStringList{QStringLiteral("用法："), QStringLiteral("[选项]"),
                                          QStringLiteral("选项："),
                                          QStringLiteral("显示版本信息。")};
    QTest::newRow("zh_TW") << QStringList{QStringLiteral("用法："), QStringLiteral("[選項]"),
                                          QStringLiteral("選項："),
                                          QStringLiteral("顯示版本資訊。")};
    QTest::newRow("en_US") << QStringList{QStringLiteral("Usage: "), QStringLiteral("[options]"),
                                          QStringLiteral("Options:"),
                                          QStringLiteral("Displays version information.")};
}

void tst_ToolkitTexts::help()
{
    QFETCH(const QStringList, texts);
    speak(QString::fromLatin1(QTest::currentDataTag()));
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addVersionOption();
    const QString help = parser.helpText();
    for (const QString& text : texts)
        QVERIFY2(help.contains(text), qPrintable(help));
}

void tst_ToolkitTexts::fileDialog_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("zh_CN") << QStringLiteral("文件名称(&N)：");
    QTest::newRow("zh_TW") << QStringLiteral("檔名(&N)：");
    QTest::newRow("en_US") << QStringLiteral("File &name:");
}

void tst_ToolkitTexts::fileDialog()
{
    QFETCH(const QString, text);
    speak(QString::fromLatin1(QTest::currentDataTag()));
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    QCOMPARE(dialog.labelText(QFileDialog::FileName), text);
}

void tst_ToolkitTexts::keysKeepTheirNames_data()
{
    QTest::addColumn<QString>("key");
    for (const char* const key : {"Ctrl+Del", "Space", "Alt+Left", "Ins", "Return"}) {
        for (const char* const language : {"zh_CN", "zh_TW", "en_US"})
            QTest::addRow("%s %s", language, key) << QString::fromLatin1(key);
    }
}

// They are stored, and compared as texts.
void tst_ToolkitTexts::keysKeepTheirNames()
{
#ifdef Q_OS_MACOS
    TEST_SKIP("Key names of this system are signs");
#endif
    QFETCH(const QString, key);
    speak(QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(' '), 0, 0));
    QCOMPARE(QKeySequence(key, QKeySequence::PortableText).toString(QKeySequence::NativeText), key);
}

TRADECONFIG_TEST_MAIN(tst_ToolkitTexts)
#include "tst_ToolkitTexts.moc"
