#include "client/DataDirectory.h"
#include "client/TradeCore.h"
#include "support/Files.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/CTradeConfigWidget.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/TableLineEdit.h"
#include "tradeConfig/TipLabel.h"
#include "tradeConfig/platform/HostPlatform.h"
#include "x11/Xdotool.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QPointer>

namespace {

/// Clicks the button of the next message box with the real mouse, as often as it takes. The box
/// runs an event loop of its own, so this happens beside the code that waits for it.
class BoxCloser {
public:
    BoxCloser()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(300);
    }

    QString text() const { return m_text; }
    bool closed() const { return !m_text.isEmpty() && !QApplication::activeModalWidget(); }

private:
    void look()
    {
        const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->button(QMessageBox::Ok))
            return;
        m_text = box->text();
        const QWidget& button = *box->button(QMessageBox::Ok);
        QProcess::startDetached(QStringLiteral("xdotool"), clickAt(button, button.rect().center()));
    }

    QTimer m_timer;
    QString m_text;
};

/// The buy protection price on the screen, "47" typed in place of "1" and still being edited.
struct PriceEditing {
    PriceEditing()
    {
        // The page is not in the navigation list.
        dialog->ui.stackedWidget_trade->setCurrentWidget(dialog->ui.page_9);
        dialog->SetCurrentIndex(1);
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        activate(*dialog);
        QTRY_VERIFY_WITH_TIMEOUT(dialog->isActiveWindow(), patience);
        click(*dialog->ui.pushButton_kc_buyRise);
        combo = dialog->ui.comboBox_trade_kc_buyRise;
        QTRY_VERIFY_WITH_TIMEOUT(combo->isEditable() && combo->hasFocus(), patience);
        editor = combo->lineEdit();
        press({QStringLiteral("ctrl+a"), QStringLiteral("4"), QStringLiteral("7")});
        QTRY_COMPARE_WITH_TIMEOUT(dialog->starBuyRiseText, QStringLiteral("47"), patience);
    }

    TestDialog dialog{[](FakeTrade& trade) { trade.parm().starBuyRiseChoices[0] = 1; }};
    QComboBox* combo = nullptr;
    QPointer<QLineEdit> editor;
};

} // namespace

/// A user at the screen, with keys and mouse of a real window system.
class tst_EditingOnScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void editsHotkeysAndQuantities();
    void protectionPriceHasNoMenu_data();
    void protectionPriceHasNoMenu();
};

void tst_EditingOnScreen::editsHotkeysAndQuantities()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
    const QString refusal = QStringLiteral("存在不合理的修改参数\n"
                                           "请把红色标记的值修改为绿色标记后再次点击确定！");
    const DataDirectory directory(QString::fromUtf8(ApplicationHomePath()));
    QVERIFY(directory.makeConfigDirectory());
    TradeCore core(directory);
    core.load();
    TradeParm& parm = *core.GetTradeParm();
    parm.splitEnabled = 1;
    parm.splitStrategy = 1;
    parm.splitMaxQty = 1000;
    parm.splitMinQty = 200;
    QVERIFY(!QFile::exists(directory.recordFile()));

    CTradeConfigWidget dialog(&core);
    // The splitting page is not in the navigation list.
    dialog.ui.stackedWidget_trade->setCurrentWidget(dialog.ui.page_8);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    activate(dialog);
    QTRY_VERIFY_WITH_TIMEOUT(dialog.isActiveWindow(), patience);
    const auto chooseGroup = [&dialog](int index) {
        xdotool(clickAt(*dialog.switchBar, QPoint(219 * index + 110, 30)));
    };
    const auto& confirm = *dialog.ui.pushButton_confirm;

    // A key that another row has.
    chooseGroup(2);
    QTableWidget& table = *dialog.ui.tableWidget_shortcut;
    QTRY_VERIFY_WITH_TIMEOUT(table.isVisible(), patience);
    const auto& buy = *qobject_cast<CTableLineEdit*>(table.cellWidget(0, 1));
    const auto& sell = *qobject_cast<CTableLineEdit*>(table.cellWidget(1, 1));
    QCOMPARE(buy.text(), QStringLiteral("Ctrl+B"));
    QCOMPARE(sell.text(), QStringLiteral("Ctrl+S"));
    click(buy);
    QTRY_VERIFY_WITH_TIMEOUT(buy.hasFocus(), patience);
    press({QStringLiteral("ctrl+s")});
    QTRY_COMPARE_WITH_TIMEOUT(table.item(0, 2)->text(), QStringLiteral("与卖出股票重复"), patience);
    QCOMPARE(buy.text(), QStringLiteral("Ctrl+S"));
    QCOMPARE(buy.styleSheet(), QStringLiteral("color:red"));
    QVERIFY(!sell.isEnabled());

    // The row that is disabled takes no key; one that is taken shows within ten milliseconds.
    click(sell);
    press({QStringLiteral("ctrl+j")});
    QTest::qWait(200);
    QCOMPARE(sell.text(), QStringLiteral("Ctrl+S"));

    {
        const BoxCloser closer;
        click(confirm);
        QTRY_VERIFY_WITH_TIMEOUT(closer.closed(), patience);
        QCOMPARE(closer.text(), refusal);
    }
    QVERIFY(dialog.isVisible());
    QVERIFY(!QFile::exists(directory.recordFile()));

    // A free key; Escape is one as well and closes nothing.
    QTRY_VERIFY_WITH_TIMEOUT(dialog.isActiveWindow(), patience);
    click(buy);
    QTRY_VERIFY_WITH_TIMEOUT(buy.hasFocus(), patience);
    press({QStringLiteral("Escape")});
    QTRY_COMPARE_WITH_TIMEOUT(buy.text(), QStringLiteral("Esc"), patience);
    press({QStringLiteral("ctrl+alt+j")});
    QTRY_COMPARE_WITH_TIMEOUT(buy.text(), QStringLiteral("Ctrl+Alt+J"), patience);
    QCOMPARE(table.item(0, 2)->text(), QStringLiteral("正常"));
    QCOMPARE(buy.styleSheet(), QStringLiteral("color:green"));
    QVERIFY(sell.isEnabled());

    // A quantity that is too small, then one that is not.
    chooseGroup(1);
    const QLineEdit& lower = *dialog.ui.lineEdit_trade_low;
    QTRY_VERIFY_WITH_TIMEOUT(lower.isVisible(), patience);
    const auto enter = [&lower](const QStringList& digits) {
        click(lower);
        QTRY_VERIFY_WITH_TIMEOUT(lower.hasFocus(), patience);
        press(QStringList{QStringLiteral("ctrl+a")} + digits);
        QTRY_COMPARE_WITH_TIMEOUT(lower.text(), digits.join(QString()), patience);
        press({QStringLiteral("Tab")});
        QTRY_VERIFY_WITH_TIMEOUT(!lower.hasFocus(), patience);
    };
    enter({QStringLiteral("5"), QStringLiteral("0")});
    QTRY_COMPARE_WITH_TIMEOUT(lower.styleSheet(), QStringLiteral("color:red"), patience);
    QVERIFY(dialog.tipLabel->isVisible());
    QCOMPARE(dialog.tipLabel->text(), QStringLiteral("不能小于100股"));
    {
        const BoxCloser closer;
        click(confirm);
        QTRY_VERIFY_WITH_TIMEOUT(closer.closed(), patience);
        QCOMPARE(closer.text(), refusal);
    }
    QVERIFY(!QFile::exists(directory.recordFile()));
    QTRY_VERIFY_WITH_TIMEOUT(dialog.isActiveWindow(), patience);
    enter({QStringLiteral("3"), QStringLiteral("0"), QStringLiteral("0")});
    QTRY_COMPARE_WITH_TIMEOUT(lower.styleSheet(), QStringLiteral("color:green"), patience);

    click(confirm);
    QTRY_VERIFY_WITH_TIMEOUT(!dialog.isVisible(), patience);
    const QJsonObject record = QJsonDocument::fromJson(contentOf(directory.recordFile())).object();
    const QJsonArray keys = record.value(QStringLiteral("stockShortcuts")).toArray();
    QCOMPARE(keys.at(0).toString(), QStringLiteral("Ctrl+Alt+J"));
    QCOMPARE(keys.at(1).toString(), QStringLiteral("Ctrl+S"));
    QCOMPARE(record.value(QStringLiteral("splitMinQty")).toInt(), 300);
    QCOMPARE(record.value(QStringLiteral("splitMaxQty")).toInt(), 1000);
}

void tst_EditingOnScreen::protectionPriceHasNoMenu_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("right button") << false;
    QTest::newRow("Menu key") << true;
}

void tst_EditingOnScreen::protectionPriceHasNoMenu()
{
    QFETCH(bool, byKey);
    const PriceEditing editing;
    QVERIFY(editing.editor);
    if (byKey)
        press({QStringLiteral("Menu")});
    else
        xdotool(clickAt(*editing.editor, editing.editor->rect().center(), 3));
    // A key after it, typed into the same editor.
    press({QStringLiteral("End"), QStringLiteral("BackSpace")});
    QTRY_COMPARE_WITH_TIMEOUT(editing.dialog->starBuyRiseText, QStringLiteral("4"), patience);
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(editing.editor);
    press({QStringLiteral("Tab")});
    QTRY_VERIFY_WITH_TIMEOUT(!editing.combo->isEditable(), patience);
    QCOMPARE(editing.combo->itemText(0), QStringLiteral("4"));
}

TRADECONFIG_TEST_MAIN(tst_EditingOnScreen)
#include "tst_EditingOnScreen.moc"
