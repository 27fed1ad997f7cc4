#include "appearance/SkinStyle.h"
#include "client/DataDirectory.h"
#include "client/MainWindow.h"
#include "client/SettingsModule.h"
#include "client/SettingsWindow.h"
#include "client/TradeCore.h"
#include "support/TestMain.h"
#include "tradeConfig/MessageBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTableView>
#include <QTimer>

/// On a screen of the size, and at the scale, that the test is started with.
class tst_ScreenFit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void clientWindow();
    void settings();
    void tabBringsEveryStopIntoSight_data();
    void tabBringsEveryStopIntoSight();
    void openLists();
    void restartQuestion();
    void refusal();
    void storingFailure();
    void about();

private:
    void closeSettings();
    static QString outside(const QWidget& window);
    static QString buttonsOutside(const QWidget& box);
    static QString outOfReach(QScrollArea& area, QWidget& control);

    const DataDirectory m_directory{QDir::homePath()};
    TradeCore m_core{m_directory, TradeCore::Storage::None};
    SettingsModule m_module;
    MainWindow m_window{m_module, m_core, m_directory};
};

void tst_ScreenFit::closeSettings()
{
    m_window.settingsWindow()->close();
    QTRY_VERIFY(!m_window.settingsWindow());
}

/// Where @p window reaches beyond the screen; empty if it does not.
QString tst_ScreenFit::outside(const QWidget& window)
{
    // The window manager's border may: it is a pixel wide and holds nothing.
    const QRect screen = window.screen()->availableGeometry();
    const QRect place = window.geometry();
    if (screen.contains(place))
        return QString();
    return QString::asprintf("%d x %d at %d, %d", place.width(), place.height(), place.x(),
                             place.y());
}

/// What of the buttons of @p box reaches beyond the screen.
QString tst_ScreenFit::buttonsOutside(const QWidget& box)
{
    for (const auto* const button : box.findChildren<QPushButton*>()) {
        const QRect place(button->mapToGlobal(QPoint()), button->size());
        if (button->isVisible() && !box.screen()->availableGeometry().contains(place))
            return button->text();
    }
    return QString();
}

/// What of @p control does not come into sight when @p area scrolls to it.
QString tst_ScreenFit::outOfReach(QScrollArea& area, QWidget& control)
{
    const QPoint middle = control.mapTo(area.widget(), control.rect().center());
    area.ensureVisible(middle.x(), middle.y(), control.width() / 2 + 1, control.height() / 2 + 1);
    QCoreApplication::processEvents();
    const QRect seen = control.visibleRegion().boundingRect();
    return seen == control.rect()
        ? QString()
        : QString::asprintf("%s: %d x %d of %d x %d", qPrintable(control.objectName()),
                            seen.width(), seen.height(), control.width(), control.height());
}

void tst_ScreenFit::initTestCase()
{
    QApplication::setStyle(new SkinStyle);
    QVERIFY(m_module.load(QStringLiteral(MODULE_FILE)).isEmpty());
    QVERIFY(m_core.load().isClean());
    m_window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_window));
}

void tst_ScreenFit::clientWindow()
{
    QTRY_COMPARE(outside(m_window), QString());
    auto* const area = qobject_cast<QScrollArea*>(m_window.centralWidget());
    QVERIFY(area);
    for (auto* const control : m_window.centralWidget()->findChildren<QLineEdit*>())
        QCOMPARE(outOfReach(*area, *control), QString());
    for (auto* const control : m_window.centralWidget()->findChildren<QCheckBox*>())
        QCOMPARE(outOfReach(*area, *control), QString());
}

void tst_ScreenFit::settings()
{
    m_window.openSettings();
    SettingsWindow& settings = *m_window.settingsWindow();
    QVERIFY(QTest::qWaitForWindowExposed(&settings));
    QTRY_COMPARE(outside(settings), QString());
    int count = 0;
    for (auto* const stack : settings.findChildren<QStackedWidget*>()) {
        for (int page = 0; page < stack->count(); ++page) {
            stack->setCurrentIndex(page);
            QCoreApplication::processEvents();
            for (auto* const control : settings.widget()->findChildren<QWidget*>()) {
                const bool input = qobject_cast<QComboBox*>(control)
                    || qobject_cast<QAbstractButton*>(control) || qobject_cast<QLineEdit*>(control);
                if (!input || !control->isVisible() || control->inherits("CTableLineEdit"))
                    continue;
                QCOMPARE(outOfReach(settings, *control), QString());
                ++count;
            }
        }
    }
    QVERIFY2(count > 20, qPrintable(QString::number(count)));
    closeSettings();
}

void tst_ScreenFit::tabBringsEveryStopIntoSight_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("stops");
    QTest::newRow("basic settings") << 0 << 0 << 6;
    QTest::newRow("interface") << 0 << 2 << 3;
    QTest::newRow("trade defaults") << 1 << 0 << 9;
    QTest::newRow("prompts") << 1 << 1 << 5;
    QTest::newRow("hotkeys") << 2 << 0 << 15;
}

// Who works by keyboard cannot turn the scroll bars.
void tst_ScreenFit::tabBringsEveryStopIntoSight()
{
    QFETCH(const int, group);
    QFETCH(const int, page);
    QFETCH(const int, stops);
    QTRY_VERIFY(m_window.isActiveWindow()); // again
    m_window.openSettings();
    SettingsWindow& settings = *m_window.settingsWindow();
    QVERIFY(QTest::qWaitForWindowActive(&settings));
    const auto stack = [&settings](const char* name) {
        return settings.findChild<QStackedWidget*>(QLatin1String(name));
    };
    const char* const groups[]
        = {"stackedWidget_system", "stackedWidget_trade", "stackedWidget_shortcut"};
    stack("stackedWidget")->setCurrentIndex(group);
    stack(groups[group])->setCurrentIndex(page);
    auto* const last = settings.findChild<QWidget*>(QStringLiteral("pushButton_confirm"));
    last->setFocus();
    QTRY_COMPARE(QApplication::focusWidget(), last);
    int count = 0;
    do {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCoreApplication::processEvents();
        const QWidget& stop = *QApplication::focusWidget();
        QCOMPARE(stop.visibleRegion().boundingRect(), stop.rect());
        ++count;
    } while (QApplication::focusWidget() != last);
    QCOMPARE(count, stops);
    closeSettings();
}

void tst_ScreenFit::openLists()
{
    m_window.openSettings();
    SettingsWindow& settings = *m_window.settingsWindow();
    QVERIFY(QTest::qWaitForWindowActive(&settings));
    int count = 0;
    for (const int group : {0, 1}) {
        settings.findChild<QStackedWidget*>(QStringLiteral("stackedWidget"))
            ->setCurrentIndex(group);
        for (auto* const combo : settings.widget()->findChildren<QComboBox*>()) {
            if (!combo->isVisible())
                continue;
            combo->setFocus();
            settings.ensureWidgetVisible(combo);
            combo->showPopup();
            const QWidget* const list = combo->view()->window();
            QTRY_VERIFY(list->isVisible());
            QCOMPARE(outside(*list), QString());
            combo->hidePopup();
            ++count;
        }
    }
    QCOMPARE(count, 9);
    closeSettings();
}

void tst_ScreenFit::restartQuestion()
{
    CMessageBox box(&m_window, QMessageBox::Warning,
                    QStringLiteral("部分修改需要重启后生效，确定现在重启吗？"),
                    QStringLiteral("tradeclient"), QMessageBox::Yes | QMessageBox::No, -1);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QTRY_COMPARE(buttonsOutside(box), QString());
}

void tst_ScreenFit::refusal()
{
    QMessageBox box(
        QMessageBox::Information, QStringLiteral("提示"),
        QStringLiteral("存在不合理的修改参数\n请把红色标记的值修改为绿色标记后再次点击确定！"),
        QMessageBox::Ok, &m_window);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QTRY_COMPARE(buttonsOutside(box), QString());
}

void tst_ScreenFit::storingFailure()
{
    QMessageBox box(
        QMessageBox::Critical, QStringLiteral("交易客户端"),
        QStringLiteral("新的交易参数已生效，但未能保存：\n无法写入 /home/trader/.com.kivotrade."
                       "tradeclient/config/trade_parameters.json：设备上没有空间"
                       "\n\n原文件未改动，退出客户端时将再次尝试保存。"),
        QMessageBox::Ok, &m_window);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QTRY_COMPARE(buttonsOutside(box), QString());
}

void tst_ScreenFit::about()
{
    // Modal: it runs an event loop of its own.
    QString wrong = QStringLiteral("no box");
    QTimer::singleShot(0, this, [&wrong] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        if (QTest::qWaitForWindowExposed(box))
            wrong = buttonsOutside(*box);
        box->close();
    });
    m_window.showAbout();
    QCOMPARE(wrong, QString());
}

TRADECONFIG_TEST_MAIN(tst_ScreenFit)
#include "tst_ScreenFit.moc"
