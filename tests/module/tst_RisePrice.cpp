#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/TipLabel.h"

#include <QAccessible>
#include <QIntValidator>

namespace {

/// One of the two protection prices.
struct Rise : TestDialog {
    explicit Rise(bool sell)
        : TestDialog([](FakeTrade& core) {
            TradeParm& parm = core.parm();
            parm.starSplitEnabled = 1;
            parm.starSplitStrategy = 3;
            for (int item = 0; item < 3; ++item) {
                parm.starBuyRiseChoices[item] = item + 1;
                parm.starSellRiseChoices[item] = 10 * (item + 1);
            }
        })
        , combo(find<QComboBox>(sell ? "comboBox_trade_kc_sellRise" : "comboBox_trade_kc_buyRise"))
        , button(find<QPushButton>(sell ? "pushButton_kc_sellRise" : "pushButton_kc_buyRise"))
        , text(sell ? get()->starSellRiseText : get()->starBuyRiseText)
        , otherText(sell ? get()->starBuyRiseText : get()->starSellRiseText)
        , first(sell ? QStringLiteral("10") : QStringLiteral("1"))
        , second(sell ? QStringLiteral("20") : QStringLiteral("2"))
        , third(sell ? QStringLiteral("30") : QStringLiteral("3"))
        , choices(sell ? trade.parm().starSellRiseChoices : trade.parm().starBuyRiseChoices)
    {
        get()->SetCurrentIndex(1);
        get()->ui.stackedWidget_trade->setCurrentWidget(get()->ui.page_9);
        get()->show();
        get()->activateWindow();
        if (!QTest::qWaitForWindowActive(get()))
            QTest::qFail("the dialog did not become active", __FILE__, __LINE__);
    }

    void begin() const { QTest::mouseClick(&button, Qt::LeftButton); }

    void type(const QString& percent) const
    {
        QTest::keyClick(&combo, Qt::Key_A, Qt::ControlModifier);
        if (percent.isEmpty())
            QTest::keyClick(&combo, Qt::Key_Delete);
        else
            QTest::keyClicks(&combo, percent);
    }

    QStringList items() const
    {
        QStringList texts;
        for (int item = 0; item < combo.count(); ++item)
            texts << combo.itemText(item);
        return texts;
    }

    QComboBox& combo;
    QPushButton& button;
    QString& text;
    QString& otherText;
    QString first;
    QString second;
    QString third;
    std::int32_t (&choices)[3];
};

} // namespace

class tst_RisePrice : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void states_data();
    void states();
    void keepsItsEntries_data();
    void keepsItsEntries();
    void doesNotComplete_data();
    void doesNotComplete();
    void percentageOfAnotherEntryStays_data();
    void percentageOfAnotherEntryStays();
    void arrowsChooseAnother_data();
    void arrowsChooseAnother();
    void validator_data();
    void validator();
    void focusOrder_data();
    void focusOrder();
    void leavingUnedited_data();
    void leavingUnedited();
    void emptyIsZero_data();
    void emptyIsZero();
    void hasNoContextMenu_data();
    void hasNoContextMenu();
    void popupEndsTheEditing_data();
    void popupEndsTheEditing();
    void choicesAreNotCleared();

private:
    static void bothPrices();
};

void tst_RisePrice::bothPrices()
{
    QTest::addColumn<bool>("sell");
    QTest::newRow("buy") << false;
    QTest::newRow("sell") << true;
}

void tst_RisePrice::states_data() { bothPrices(); }

void tst_RisePrice::states()
{
    QFETCH(bool, sell);
    const Rise rise(sell);
    QVERIFY(!rise.combo.isEditable());
    QVERIFY(rise.button.isEnabled());
    QCOMPARE(rise.items(), QStringList({rise.first, rise.second, rise.third}));

    rise.combo.setCurrentIndex(1);
    rise.begin();
    QVERIFY(rise.combo.isEditable());
    QVERIFY(!rise.button.isEnabled());
    QVERIFY(rise.combo.hasFocus());
    QCOMPARE(rise.text, rise.second);
    QCOMPARE(rise.otherText, QString());

    rise.type(QStringLiteral("47"));
    QCOMPARE(rise.text, QStringLiteral("47"));
    QCOMPARE(rise.otherText, QString());
    QCOMPARE(rise.items(), QStringList({rise.first, rise.second, rise.third}));

    rise.leaveField();
    QVERIFY(!rise.combo.isEditable());
    QVERIFY(rise.button.isEnabled());
    QCOMPARE(rise.items(), QStringList({rise.first, QStringLiteral("47"), rise.third}));
    QCOMPARE(rise.combo.currentIndex(), 1);
    QVERIFY(rise->inputValidity.isEmpty());

    rise->WriteAllParm();
    QCOMPARE(rise.choices[0], rise.first.toInt());
    QCOMPARE(rise.choices[1], 47);
    QCOMPARE(rise.choices[2], rise.third.toInt());
}

void tst_RisePrice::keepsItsEntries_data()
{
    QTest::addColumn<bool>("sell");
    QTest::addColumn<QList<int>>("keys");
    for (const bool sell : {false, true}) {
        const char* const name = sell ? "sell" : "buy";
        QTest::addRow("%s Return", name) << sell << QList<int>{Qt::Key_Return};
        QTest::addRow("%s Enter", name) << sell << QList<int>{Qt::Key_Enter};
        QTest::addRow("%s Return twice", name)
            << sell << QList<int>{Qt::Key_Return, Qt::Key_Return};
        QTest::addRow("%s Escape", name) << sell << QList<int>{Qt::Key_Escape};
        QTest::addRow("%s Home, End", name) << sell << QList<int>{Qt::Key_Home, Qt::Key_End};
        QTest::addRow("%s Left, Right", name) << sell << QList<int>{Qt::Key_Left, Qt::Key_Right};
        QTest::addRow("%s letters", name) << sell << QList<int>{Qt::Key_X, Qt::Key_Minus};
    }
}

void tst_RisePrice::keepsItsEntries()
{
    QFETCH(bool, sell);
    QFETCH(QList<int>, keys);
    const Rise rise(sell);
    rise.begin();
    rise.type(QStringLiteral("47"));
    for (const int key : qAsConst(keys))
        QTest::keyClick(&rise.combo, Qt::Key(key));
    QCOMPARE(rise.combo.count(), 3);
    QCOMPARE(rise.text, QStringLiteral("47"));
    rise.leaveField();
    QCOMPARE(rise.items(), QStringList({QStringLiteral("47"), rise.second, rise.third}));
    QCOMPARE(rise.combo.currentIndex(), 0);
}

void tst_RisePrice::doesNotComplete_data() { bothPrices(); }

void tst_RisePrice::doesNotComplete()
{
    QFETCH(bool, sell);
    const Rise rise(sell);
    rise.combo.setItemText(1, QStringLiteral("88"));
    rise.begin();
    QTest::keyClick(&rise.combo, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&rise.combo, Qt::Key_8);
    QCOMPARE(rise.combo.currentText(), QStringLiteral("8"));
    QCOMPARE(rise.text, QStringLiteral("8"));
    rise.leaveField();
    QCOMPARE(rise.items(), QStringList({QStringLiteral("8"), QStringLiteral("88"), rise.third}));
}

void tst_RisePrice::percentageOfAnotherEntryStays_data() { bothPrices(); }

void tst_RisePrice::percentageOfAnotherEntryStays()
{
    QFETCH(bool, sell);
    // A percentage that another entry has too goes to the entry that is edited, with Return or
    // without.
    for (const bool withReturn : {false, true}) {
        const Rise rise(sell);
        rise.begin();
        rise.type(rise.second);
        if (withReturn)
            QTest::keyClick(&rise.combo, Qt::Key_Return);
        rise.leaveField();
        QCOMPARE(rise.items(), QStringList({rise.second, rise.second, rise.third}));
        QCOMPARE(rise.combo.currentIndex(), 0);
    }
}

void tst_RisePrice::arrowsChooseAnother_data() { bothPrices(); }

void tst_RisePrice::arrowsChooseAnother()
{
    QFETCH(bool, sell);
    const Rise rise(sell);
    rise.begin();
    QTest::keyClick(&rise.combo, Qt::Key_Down);
    QCOMPARE(rise.combo.currentIndex(), 1);
    QCOMPARE(rise.text, rise.second);
    for (int press = 0; press < 3; ++press)
        QTest::keyClick(&rise.combo, Qt::Key_Down);
    QCOMPARE(rise.combo.currentIndex(), 2);
    QCOMPARE(rise.text, rise.third);
    for (int press = 0; press < 3; ++press)
        QTest::keyClick(&rise.combo, Qt::Key_Up);
    QCOMPARE(rise.combo.currentIndex(), 0);
    rise.leaveField();
    QCOMPARE(rise.items(), QStringList({rise.first, rise.second, rise.third}));
}

void tst_RisePrice::validator_data() { bothPrices(); }

void tst_RisePrice::validator()
{
    QFETCH(bool, sell);
    const Rise rise(sell);
    rise.begin();
    const auto* const validator = qobject_cast<const QIntValidator*>(rise.combo.validator());
    QVERIFY(validator);
    QCOMPARE(validator->bottom(), 0);
    QCOMPARE(validator->top(), 100);
    QCOMPARE(validator->parent(), rise.get());

    rise.type(QStringLiteral("101"));
    QCOMPARE(rise.text, QStringLiteral("10"));
    rise.type(QStringLiteral("100"));
    QCOMPARE(rise.text, QStringLiteral("100"));
    rise.type(QStringLiteral("-5"));
    QCOMPARE(rise.text, QStringLiteral("5"));
    rise.type(QStringLiteral("0"));
    QCOMPARE(rise.text, QStringLiteral("0"));
    rise.leaveField();

    rise.begin();
    const auto* const next = qobject_cast<const QIntValidator*>(rise.combo.validator());
    QVERIFY(next);
    QVERIFY(next != validator);
    QCOMPARE(next->parent(), rise.get());
}

void tst_RisePrice::focusOrder_data() { bothPrices(); }

void tst_RisePrice::focusOrder()
{
    QFETCH(bool, sell);
    const Rise rise(sell);
    // Both ways to the button: a disabled button hands the focus on, and a field that only
    // passes it along would be checked.
    rise.begin();
    QVERIFY(rise.combo.hasFocus());
    QVERIFY(rise->inputValidity.isEmpty());
    rise.leaveField();
    rise.button.setFocus();
    QList<QWidget*> visited;
    const auto connection = connect(qApp, &QApplication::focusChanged,
                                    [&visited](QWidget*, QWidget* now) { visited << now; });
    QTest::keyClick(&rise.button, Qt::Key_Space);
    disconnect(connection);
    QCOMPARE(visited, QList<QWidget*>{&rise.combo});
    QVERIFY(rise.combo.isEditable());
    QVERIFY(rise.combo.hasFocus());
    QVERIFY(rise->inputValidity.isEmpty());
    QVERIFY(rise->tipLabel->isHidden());
    // The other price did not enter its editing state.
    QVERIFY(rise.find(sell ? "pushButton_kc_buyRise" : "pushButton_kc_sellRise").isEnabled());
}

void tst_RisePrice::leavingUnedited_data() { bothPrices(); }

void tst_RisePrice::leavingUnedited()
{
    QFETCH(bool, sell);
    const Rise rise(sell);
    rise.text = QStringLiteral("stale");
    rise.combo.setFocus();
    rise.leaveField();
    QCOMPARE(rise.items(), QStringList({rise.first, rise.second, rise.third}));
    QVERIFY(rise.button.isEnabled());
    // And leaving at once stores what was there.
    rise.begin();
    rise.leaveField();
    QCOMPARE(rise.items(), QStringList({rise.first, rise.second, rise.third}));
}

void tst_RisePrice::emptyIsZero_data() { bothPrices(); }

void tst_RisePrice::emptyIsZero()
{
    QFETCH(bool, sell);
    Rise rise(sell);
    rise.combo.setCurrentIndex(2);
    rise.begin();
    rise.type(QString());
    QCOMPARE(rise.text, QString());
    rise.leaveField();
    QCOMPARE(rise.items(), QStringList({rise.first, rise.second, QString()}));
    rise->WriteAllParm();
    QCOMPARE(rise.trade.saves, 1);
    QCOMPARE(rise.choices[2], 0);
}

void tst_RisePrice::hasNoContextMenu_data()
{
    QTest::addColumn<bool>("sell");
    QTest::addColumn<QString>("how");
    for (const bool sell : {false, true}) {
        for (const char* const how :
             {"right button", "Menu key", "sent to the combo", "sent to the editor"})
            QTest::addRow("%s, %s", sell ? "sell" : "buy", how) << sell << QString::fromLatin1(how);
    }
}

// A menu would take the focus, which ends the editing and with it the editor that shows the menu.
void tst_RisePrice::hasNoContextMenu()
{
    QFETCH(bool, sell);
    QFETCH(QString, how);
    const Rise rise(sell);
    rise.begin();
    rise.type(QStringLiteral("47"));
    const QPointer<QLineEdit> editor = rise.combo.lineEdit();
    QCOMPARE(rise.combo.contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(editor->contextMenuPolicy(), Qt::NoContextMenu);
    QWidget& window = *rise;
    const QPoint place = editor->mapTo(&window, editor->rect().center());
    if (how == QStringLiteral("right button")) {
        QTest::mouseClick(window.windowHandle(), Qt::RightButton, Qt::NoModifier, place);
    } else if (how == QStringLiteral("Menu key")) {
        // What a window gets from the system beside the key.
        QContextMenuEvent event(QContextMenuEvent::Keyboard, place, window.mapToGlobal(place));
        QCoreApplication::sendEvent(window.windowHandle(), &event);
    } else {
        QContextMenuEvent event(QContextMenuEvent::Other, QPoint(3, 3), window.mapToGlobal(place));
        QCoreApplication::sendEvent(how == QStringLiteral("sent to the editor")
                                        ? static_cast<QWidget*>(editor)
                                        : &rise.combo,
                                    &event);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(editor);
    QVERIFY(rise.combo.isEditable());
    QVERIFY(rise.combo.hasFocus());

    QTest::keyClick(&rise.combo, Qt::Key_Backspace);
    rise.leaveField();
    QCOMPARE(rise.items(), QStringList({QStringLiteral("4"), rise.second, rise.third}));
}

void tst_RisePrice::popupEndsTheEditing_data()
{
    QTest::addColumn<bool>("sell");
    QTest::addColumn<QString>("how");
    for (const bool sell : {false, true}) {
        for (const char* const how : {"called", "arrow", "F4", "Alt+Down", "assistive technology"})
            QTest::addRow("%s, %s", sell ? "sell" : "buy", how) << sell << QString::fromLatin1(how);
    }
}

void tst_RisePrice::popupEndsTheEditing()
{
    QFETCH(bool, sell);
    QFETCH(QString, how);
    const Rise rise(sell);
    rise.begin();
    rise.type(QStringLiteral("47"));
    QWidget& window = *rise;
    if (how == QStringLiteral("called")) {
        rise.combo.showPopup();
    } else if (how == QStringLiteral("arrow")) {
        const QPoint arrow(rise.combo.width() - 5, rise.combo.height() / 2);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          rise.combo.mapTo(&window, arrow));
    } else if (how == QStringLiteral("F4")) {
        QTest::keyClick(window.windowHandle(), Qt::Key_F4);
    } else if (how == QStringLiteral("Alt+Down")) {
        QTest::keyClick(window.windowHandle(), Qt::Key_Down, Qt::AltModifier);
    } else {
        QAccessible::queryAccessibleInterface(&rise.combo)
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::showMenuAction());
    }
    QVERIFY(rise.combo.view()->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(!rise.combo.isEditable());
    rise.combo.hidePopup();
    rise.leaveField();
    QVERIFY(!rise.combo.isEditable());
    QVERIFY(rise.button.isEnabled());
    QCOMPARE(rise.items(), QStringList({QStringLiteral("47"), rise.second, rise.third}));
    QCOMPARE(rise.combo.currentIndex(), 0);
}

void tst_RisePrice::choicesAreNotCleared()
{
    const Rise buy(false);
    const Rise sell(true);
    buy->ReadAllParm();
    sell->ReadAllParm();
    QCOMPARE(buy.items().join(QLatin1Char(' ')), QStringLiteral("1 2 3 1 2 3"));
    QCOMPARE(sell.items().join(QLatin1Char(' ')), QStringLiteral("10 20 30 10 20 30"));
}

TRADECONFIG_TEST_MAIN(tst_RisePrice)
#include "tst_RisePrice.moc"
