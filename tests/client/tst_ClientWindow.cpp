#include "client/DataDirectory.h"
#include "client/MainWindow.h"
#include "client/RecordModel.h"
#include "client/SettingsModule.h"
#include "client/SettingsWindow.h"
#include "client/StartSettings.h"
#include "client/TradeCore.h"
#include "support/Files.h"
#include "support/KeyText.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include <memory>

/// The client's window with the module as it ships.
class tst_ClientWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void showsEveryElement();
    void showsMeanings_data();
    void showsMeanings();
    void everyOtherPageModeHides();
    void confirmStoresAndMarks();
    void nextConfirmMarksOnlyItsOwn();
    void cancelChangesNothing();
    void changeWithoutAConfirm_data();
    void changeWithoutAConfirm();
    void languageFromTheMenu();
    void restoresDefaultsAndUndoes();
    void comesBackAsItWasLeft();
    void takesTheMouse();
    void opensAgainAndAgain();
    void secondRequestFindsTheSameWindow();
    void closeButtonOfTheWindow();
    void tellsWhenStoringFails();
    void comesToTheFront_data();
    void comesToTheFront();
    void comesToTheFrontWithWhatWaits();
    void scrollsWhenTooSmall();
    void startSettings_data();
    void startSettings();

private:
    QWidget* dialog() const { return m_window->settingsWindow()->widget(); }
    template <class Widget> Widget* control(const char* name) const
    {
        return dialog()->findChild<Widget*>(QLatin1String(name));
    }
    QString cell(const char* name, int column) const;
    QStringList marked() const;

    SettingsModule m_module;
    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<DataDirectory> m_directory;
    std::unique_ptr<TradeCore> m_core;
    std::unique_ptr<MainWindow> m_window;
};

void tst_ClientWindow::initTestCase()
{
    QCOMPARE(m_module.load(QStringLiteral(MODULE_FILE)), QString());
    QVERIFY(m_module.homePath().endsWith(QStringLiteral("/.com.kivotrade.tradeclient")));
}

void tst_ClientWindow::init()
{
    // The module keeps the language in a file of the home that all cases share.
    QFile::remove(DataDirectory(m_module.homePath()).settingsFile());
    m_home = std::make_unique<QTemporaryDir>();
    m_directory = std::make_unique<DataDirectory>(m_home->path());
    m_core = std::make_unique<TradeCore>(*m_directory);
    QVERIFY(m_core->load().isClean());
    m_window = std::make_unique<MainWindow>(m_module, *m_core, *m_directory);
    m_window->show();
}

void tst_ClientWindow::cleanup()
{
    m_window.reset();
    m_core.reset();
}

QString tst_ClientWindow::cell(const char* name, int column) const
{
    const RecordModel* const model = m_window->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        if (model->index(row, RecordModel::NameColumn).data().toString() == QLatin1String(name))
            return model->index(row, column).data().toString();
    }
    return QStringLiteral("no such row");
}

QStringList tst_ClientWindow::marked() const
{
    QStringList names;
    const RecordModel* const model = m_window->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        const QModelIndex index = model->index(row, RecordModel::NameColumn);
        if (index.data(RecordModel::ChangedRole).toBool())
            names += index.data().toString();
    }
    return names;
}

void tst_ClientWindow::showsEveryElement()
{
    // 35 single fields, two lists of three percentages, two stretches and two lists of 13 keys.
    QCOMPARE(m_window->model()->rowCount(), 35 + 6 + 2 + 26);
    auto* const table = m_window->findChild<QTableView*>(QStringLiteral("tableView_record"));
    QVERIFY(table);
    QCOMPARE(table->model()->rowCount(), 69);
    QCOMPARE(marked(), QStringList());
}

void tst_ClientWindow::showsMeanings_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("meaning");
    const auto row = [](const char* name, const char* value, const char* meaning) {
        QTest::newRow(name) << QString::fromUtf8(value) << QString::fromUtf8(meaning);
    };
    row("defaultBuyPrice", "0", "卖一");
    row("defaultSellPrice", "0", "买一");
    row("defaultBuyQty", "0", "空");
    row("quoteFollowsOrder", "0", "是");
    row("confirmOrder", "1", "启用");
    row("splitEnabled", "0", "关闭");
    row("splitMaxQty", "50000", "50000 股");
    row("starSplitStrategy", "0", "限价委托");
    row("starBuyRiseChoices[2]", "5", "上浮 5%");
    row("defaultPage", "ptmr", "股票买入");
    row("lockMinutes", "30", "30 分钟");
    row("uiPageMode", "2", "显示");
    row("reservedA", "00000000", "由客户端保留");
    row("stockShortcuts[5]", keyText("Ctrl+R").toUtf8().constData(),
        (QStringLiteral("按 ") + keyText("Ctrl+R") + QStringLiteral("：撤单"))
            .toUtf8()
            .constData());
}

void tst_ClientWindow::showsMeanings()
{
    QFETCH(QString, value);
    QFETCH(QString, meaning);
    QCOMPARE(cell(QTest::currentDataTag(), RecordModel::ValueColumn), value);
    QCOMPARE(cell(QTest::currentDataTag(), RecordModel::MeaningColumn), meaning);
}

void tst_ClientWindow::everyOtherPageModeHides()
{
    for (const int mode : {-7, 0, 1, 3}) {
        m_core->GetTradeParm()->uiPageMode = mode;
        m_window->model()->show(m_core->record());
        QCOMPARE(cell("uiPageMode", RecordModel::ValueColumn), QString::number(mode));
        QCOMPARE(cell("uiPageMode", RecordModel::MeaningColumn), QStringLiteral("隐藏"));
    }
}

void tst_ClientWindow::confirmStoresAndMarks()
{
    m_window->openSettings();
    control<QLineEdit>("lineEdit_system_lockTime")->setText(QStringLiteral("45"));
    control<QComboBox>("comboBox_trade_buyPrice")->setCurrentIndex(6);
    const QPointer<SettingsWindow> settings = m_window->settingsWindow();
    const QPointer<QWidget> content = dialog();
    control<QPushButton>("pushButton_confirm")->click();

    QCOMPARE(marked(),
             (QStringList{QStringLiteral("defaultBuyPrice"), QStringLiteral("lockMinutes")}));
    QCOMPARE(cell("defaultBuyPrice", RecordModel::MeaningColumn), QStringLiteral("空"));
    QCOMPARE(cell("defaultBuyPrice", RecordModel::ChangeColumn), QStringLiteral("原为 卖一"));
    QCOMPARE(cell("lockMinutes", RecordModel::ValueColumn), QStringLiteral("45"));

    TradeCore stored(*m_directory);
    QVERIFY(stored.load().isClean());
    QCOMPARE(stored.GetTradeParm()->lockMinutes, 45);
    QCOMPARE(stored.GetTradeParm()->defaultBuyPrice, 6);
    QVERIFY(stored.record() == m_core->record());

    QTRY_VERIFY(!settings);
    QVERIFY2(!content, "the dialog goes with its window");
    QVERIFY(m_window->isVisible());
}

void tst_ClientWindow::nextConfirmMarksOnlyItsOwn()
{
    m_window->openSettings();
    control<QLineEdit>("lineEdit_system_lockTime")->setText(QStringLiteral("45"));
    control<QPushButton>("pushButton_confirm")->click();
    QTRY_VERIFY(!m_window->settingsWindow());

    m_window->openSettings();
    QCOMPARE(control<QLineEdit>("lineEdit_system_lockTime")->text(), QStringLiteral("45"));
    control<QComboBox>("comboBox_trade_sellCount")->setCurrentIndex(3);
    control<QPushButton>("pushButton_confirm")->click();
    QCOMPARE(marked(), QStringList{QStringLiteral("defaultSellQty")});
    QTRY_VERIFY(!m_window->settingsWindow());

    m_window->openSettings();
    control<QPushButton>("pushButton_confirm")->click();
    QCOMPARE(marked(), QStringList());
}

void tst_ClientWindow::cancelChangesNothing()
{
    m_window->openSettings();
    control<QLineEdit>("lineEdit_system_lockTime")->setText(QStringLiteral("45"));
    control<QPushButton>("pushButton_cancle")->click();
    QTRY_VERIFY(!m_window->settingsWindow());
    QCOMPARE(m_core->GetTradeParm()->lockMinutes, 30);
    QCOMPARE(marked(), QStringList());
    QVERIFY(!QFileInfo::exists(m_directory->recordFile()));
}

void tst_ClientWindow::changeWithoutAConfirm_data()
{
    QTest::addColumn<QByteArray>("closedBy");
    QTest::newRow("cancel") << QByteArray("pushButton_cancle");
    QTest::newRow("window") << QByteArray();
}

void tst_ClientWindow::changeWithoutAConfirm()
{
    QFETCH(QByteArray, closedBy);
    const auto* const summary = m_window->findChild<QLabel*>(QStringLiteral("label_summary"));
    m_window->openSettings();
    control<QLineEdit>("lineEdit_system_lockTime")->setText(QStringLiteral("45"));
    control<QPushButton>("pushButton_confirm")->click();
    QTRY_VERIFY(!m_window->settingsWindow());
    QVERIFY(summary->text().endsWith(QStringLiteral(" 已确认，修改了 1 项")));

    m_window->openSettings();
    const ModalAnswer later = ModalAnswer::clicking(QStringLiteral("否"));
    control<QComboBox>("comboBox_system_language")->setCurrentIndex(2);
    QTRY_VERIFY(later.came());
    QCOMPARE(m_core->GetTradeParm()->languageIndex, 2);
    if (closedBy.isEmpty())
        m_window->settingsWindow()->close();
    else
        control<QPushButton>(closedBy.constData())->click();
    QTRY_VERIFY(!m_window->settingsWindow());
    QCOMPARE(cell("languageIndex", RecordModel::ValueColumn), QStringLiteral("2"));
    QCOMPARE(cell("languageIndex", RecordModel::ChangeColumn), QStringLiteral("原为 简体"));
    QCOMPARE(cell("lockMinutes", RecordModel::ChangeColumn), QStringLiteral("原为 30 分钟"));
    QCOMPARE(marked(),
             (QStringList{QStringLiteral("lockMinutes"), QStringLiteral("languageIndex")}));
    QVERIFY2(summary->text().endsWith(QStringLiteral(" 未经确认，修改了 1 项")),
             qPrintable(summary->text()));

    // Nothing new: what was said stays.
    const QString said = summary->text();
    m_window->openSettings();
    m_window->settingsWindow()->close();
    QTRY_VERIFY(!m_window->settingsWindow());
    QCOMPARE(marked().size(), 2);
    QCOMPARE(summary->text(), said);

    // The next confirm marks its own again.
    m_window->openSettings();
    control<QPushButton>("pushButton_confirm")->click();
    QCOMPARE(marked(), QStringList());
}

void tst_ClientWindow::languageFromTheMenu()
{
    QVERIFY(m_directory->makeConfigDirectory());
    auto* const menu = m_window->findChild<QMenu*>(QStringLiteral("menu_language"));
    m_window->openSettings();
    QVERIFY2(!menu->isEnabled(), "the dialog stores one of its own");
    m_window->settingsWindow()->close();
    QVERIFY(menu->isEnabled());

    const ModalAnswer later = ModalAnswer::pressing(QMessageBox::No);
    menu->actions().at(2)->trigger();
    QVERIFY(later.came());
    QCOMPARE(m_core->GetTradeParm()->languageIndex, 2);
    QCOMPARE(cell("languageIndex", RecordModel::MeaningColumn), QStringLiteral("English"));
    QCOMPARE(marked(), QStringList{QStringLiteral("languageIndex")});
    QCOMPARE(StartSettings::read(*m_directory).language, QStringLiteral("en_US"));
}

void tst_ClientWindow::restoresDefaultsAndUndoes()
{
    const auto action
        = [this](const char* name) { return m_window->findChild<QAction*>(QLatin1String(name)); };
    const auto* const summary = m_window->findChild<QLabel*>(QStringLiteral("label_summary"));
    m_core->GetTradeParm()->lockMinutes = 45;
    m_window->model()->show(m_core->record());
    const ModalAnswer yes = ModalAnswer::pressing(QMessageBox::Yes);
    action("action_restore")->trigger();
    QVERIFY(yes.came());
    QCOMPARE(marked(), QStringList{QStringLiteral("lockMinutes")});
    QCOMPARE(cell("lockMinutes", RecordModel::ChangeColumn), QStringLiteral("原为 45 分钟"));
    QVERIFY(summary->text().endsWith(QStringLiteral(" 已恢复默认值，修改了 1 项")));

    m_window->openSettings();
    QVERIFY(!action("action_undo")->isEnabled());
    QVERIFY(!action("action_import")->isEnabled());
    m_window->settingsWindow()->close();
    action("action_undo")->trigger();
    QCOMPARE(cell("lockMinutes", RecordModel::ValueColumn), QStringLiteral("45"));
    QVERIFY(summary->text().endsWith(QStringLiteral(" 已撤消，修改了 1 项")));
    QVERIFY(!action("action_undo")->isEnabled());
}

void tst_ClientWindow::comesBackAsItWasLeft()
{
    m_window->resize(600, 420);
    m_window->findChild<QLineEdit*>(QStringLiteral("lineEdit_search"))
        ->setText(QStringLiteral("split"));
    m_window->keepPlace();
    m_window = std::make_unique<MainWindow>(m_module, *m_core, *m_directory);
    m_window->restorePlace();
    QCOMPARE(m_window->size(), QSize(600, 420));
    QCOMPARE(m_window->findChild<QLineEdit*>(QStringLiteral("lineEdit_search"))->text(),
             QStringLiteral("split"));
    auto* const table = m_window->findChild<QTableView*>(QStringLiteral("tableView_record"));
    QVERIFY(table->model()->rowCount() < 20);
}

void tst_ClientWindow::takesTheMouse()
{
    m_window->openSettings();
    SettingsWindow* const settings = m_window->settingsWindow();
    QVERIFY(QTest::qWaitForWindowExposed(settings));
    auto* const cancel = control<QPushButton>("pushButton_cancle");
    settings->ensureWidgetVisible(cancel);
    const QPoint position = cancel->mapTo(settings, cancel->rect().center());
    QCOMPARE(settings->childAt(position), cancel);
    QTest::mouseClick(settings->windowHandle(), Qt::LeftButton, Qt::NoModifier, position);
    QTRY_VERIFY(!m_window->settingsWindow());
}

void tst_ClientWindow::opensAgainAndAgain()
{
    auto* const action = m_window->findChild<QAction*>(QStringLiteral("action_settings"));
    QVERIFY(action);
    QCOMPARE(action->text(), QStringLiteral("设置"));
    for (int i = 0; i < 8; ++i) {
        action->trigger();
        QVERIFY(m_window->settingsWindow()->isVisible());
        QVERIFY(dialog()->isVisible());
        control<QPushButton>(i % 2 ? "pushButton_confirm" : "pushButton_cancle")->click();
        QTRY_VERIFY(!m_window->settingsWindow());
        QCOMPARE(m_window->findChildren<SettingsWindow*>().size(), 0);
    }
}

void tst_ClientWindow::secondRequestFindsTheSameWindow()
{
    m_window->openSettings();
    SettingsWindow* const first = m_window->settingsWindow();
    m_window->openSettings();
    QCOMPARE(m_window->settingsWindow(), first);
    QCOMPARE(m_window->findChildren<SettingsWindow*>().size(), 1);
}

void tst_ClientWindow::closeButtonOfTheWindow()
{
    m_window->openSettings();
    m_window->settingsWindow()->close();
    QTRY_VERIFY(!m_window->settingsWindow());
}

void tst_ClientWindow::tellsWhenStoringFails()
{
    writeFile(m_home->filePath(QStringLiteral("config")), "in the way");
    m_window->openSettings();
    control<QLineEdit>("lineEdit_system_lockTime")->setText(QStringLiteral("45"));
    const ModalAnswer answer = ModalAnswer::pressing(QMessageBox::Ok);
    control<QPushButton>("pushButton_confirm")->click();
    QVERIFY2(!answer.came(), "only after the dialog has closed");
    QTRY_VERIFY(answer.came());
    QVERIFY2(answer.text().contains(m_home->filePath(QStringLiteral("config"))),
             qPrintable(answer.text()));
    QCOMPARE(m_core->GetTradeParm()->lockMinutes, 45);
    QCOMPARE(marked(), QStringList{QStringLiteral("lockMinutes")});
}

void tst_ClientWindow::comesToTheFront_data()
{
    QTest::addColumn<Qt::WindowStates>("before");
    QTest::addColumn<Qt::WindowStates>("after");
    using States = Qt::WindowStates;
    QTest::newRow("open") << States(Qt::WindowNoState) << States(Qt::WindowNoState);
    QTest::newRow("minimised") << States(Qt::WindowMinimized) << States(Qt::WindowNoState);
    QTest::newRow("minimised from maximised")
        << States(Qt::WindowMinimized | Qt::WindowMaximized) << States(Qt::WindowMaximized);
}

void tst_ClientWindow::comesToTheFront()
{
    QFETCH(const Qt::WindowStates, before);
    QFETCH(const Qt::WindowStates, after);
    m_window->setWindowState(before);
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &other);
    m_window->comeToFront();
    QTRY_COMPARE(QApplication::activeWindow(), m_window.get());
    QVERIFY(m_window->isVisible());
    QCOMPARE(m_window->windowState() & ~Qt::WindowActive, after);
}

void tst_ClientWindow::comesToTheFrontWithWhatWaits()
{
    QMessageBox box(m_window.get());
    box.open();
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &other);
    m_window->comeToFront();
    QTRY_COMPARE(QApplication::activeWindow(), &box);
}

void tst_ClientWindow::scrollsWhenTooSmall()
{
    m_window->openSettings();
    SettingsWindow* const settings = m_window->settingsWindow();
    settings->resize(659, 641);
    QTRY_VERIFY(!settings->verticalScrollBar()->isVisible());
    QVERIFY(!settings->horizontalScrollBar()->isVisible());
    QCOMPARE(dialog()->size(), QSize(659, 641));
    settings->resize(400, 300);
    QTRY_VERIFY(settings->verticalScrollBar()->isVisible());
    QVERIFY(settings->horizontalScrollBar()->isVisible());
    QCOMPARE(dialog()->size(), QSize(659, 641));
    settings->ensureWidgetVisible(control<QPushButton>("pushButton_confirm"));
    QVERIFY(!control<QPushButton>("pushButton_confirm")->visibleRegion().isEmpty());
}

void tst_ClientWindow::startSettings_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("scale");
    QTest::addColumn<QString>("language");
    const auto row
        = [](const char* tag, const QByteArray& content, int scale, const char* language) {
              QTest::newRow(tag) << content << scale << QString::fromLatin1(language);
          };
    row("empty", "", 100, "zh_CN");
    row("both", "[UI]\nscale=175\nlanguage=zh_TW\n", 175, "zh_TW");
    row("between steps", "[UI]\nscale=103\n", 103, "zh_CN");
    row("limits", "[UI]\nscale=300\nlanguage=en_US\n", 300, "en_US");
    row("beyond", "[UI]\nscale=301\nlanguage=fr_FR\n", 300, "zh_CN");
    row("below", "[UI]\nscale=-100\nlanguage=\n", 100, "zh_CN");
    row("no number", "[UI]\nscale=big\nlanguage=en_us\n", 100, "zh_CN");
    row("garbage", "\x01\xff[[[\n=\n", 100, "zh_CN");
    const char* const list = "(\\0\\0\\0\\v\\x7f\\xff\\xff\\xf0zz)";
    const auto object = [&row, list](const char* tag, const char* sign, int scale,
                                     const char* language, const QByteArray& other) {
        row(tag, "[UI]\nscale=" + QByteArray(sign) + list + '\n' + other, scale, language);
    };
    object("object", "@Variant", 100, "zh_TW", "language=zh_TW\n");
    object("object in hexadecimal", "\\x40Variant", 100, "zh_TW", "language=zh_TW\n");
    object("object in octal", "\\100Variant", 100, "zh_TW", "language=zh_TW\n");
    object("object in quotes", "\"@Variant", 100, "zh_TW", "language=zh_TW\n");
    object("object in a list", "1, @Variant", 100, "zh_TW", "language=zh_TW\n");
    object("object after a skipped sign", "\\q@Variant", 100, "zh_TW", "language=zh_TW\n");
    object("object on the next line", "\\\n@Variant", 100, "zh_CN", "");
    row("another section's object",
        "[UI]\nscale=150\n[Other]\nkey=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xf0zz)\n", 150,
        "zh_CN");
}

void tst_ClientWindow::startSettings()
{
    QFETCH(QByteArray, content);
    QFETCH(int, scale);
    QFETCH(QString, language);
    for (const bool withConfig : {false, true}) {
        if (withConfig)
            QVERIFY(m_directory->makeConfigDirectory());
        const QString place = withConfig ? QStringLiteral("config/system_settings.ini")
                                         : QStringLiteral("system_settings.ini");
        writeFile(m_home->filePath(place), content);
        const StartSettings settings = StartSettings::read(*m_directory);
        QCOMPARE(settings.scalePercent, scale);
        QCOMPARE(settings.language, language);
    }
}

TRADECONFIG_TEST_MAIN(tst_ClientWindow)
#include "tst_ClientWindow.moc"
