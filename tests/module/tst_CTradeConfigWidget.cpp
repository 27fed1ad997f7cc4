#include "support/Files.h"
#include "support/MarkingTranslator.h"
#include "support/MessageCapture.h"
#include "support/ModalAnswer.h"
#include "support/TestDialog.h"
#include "support/TestMain.h"
#include "tradeConfig/ModuleEntry.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/TableLineEdit.h"
#include "tradeConfig/TipLabel.h"

#include <QDir>
#include <QSettings>

#include <optional>
#include <stdexcept>

namespace {

const QString refusal
    = QStringLiteral("存在不合理的修改参数\n请把红色标记的值修改为绿色标记后再次点击确定！");
const QString restartQuestion = QStringLiteral("部分修改需要重启后生效，确定现在重启吗？");

// Logs every call, so that its place among the progress lines shows.
class LoggingTrade : public FakeTrade {
public:
    TradeParm* GetTradeParm() override
    {
        qDebug("get");
        return FakeTrade::GetTradeParm();
    }
    void SaveTradeParm() override
    {
        qDebug("save");
        FakeTrade::SaveTradeParm();
    }
};

class ThrowingTrade : public FakeTrade {
public:
    explicit ThrowingTrade(int atCall)
        : m_atCall(atCall)
    {
    }
    TradeParm* GetTradeParm() override
    {
        if (gets + 1 == m_atCall)
            throw std::runtime_error("no record");
        return FakeTrade::GetTradeParm();
    }

private:
    int m_atCall;
};

// Turns the scale of the dialog that is just being loaded.
class ScaleTurningTrade : public FakeTrade {
public:
    TradeParm* GetTradeParm() override
    {
        if (gets == 1) {
            for (const QWidget* const widget : QApplication::allWidgets()) {
                if (const auto* const dialog = qobject_cast<const CTradeConfigWidget*>(widget)) {
                    dialog->ui.spinBox_scale->setValue(200);
                    wasNeeded = dialog->restartNeeded;
                }
            }
        }
        return FakeTrade::GetTradeParm();
    }

    bool wasNeeded = false;
};

// Sees which objects' events pass through the dialog's filter.
class FilterWatcher : public CTradeConfigWidget {
public:
    using CTradeConfigWidget::CTradeConfigWidget;
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::User)
            filtered << watched;
        const bool consumed = CTradeConfigWidget::eventFilter(watched, event);
        consumedAny = consumedAny || consumed;
        return consumed;
    }

    QList<QObject*> filtered;
    bool consumedAny = false;
};

struct Opened : TestDialog {
    explicit Opened(int uiPageMode = 2)
        : TestDialog([uiPageMode](FakeTrade& core) {
            core.parm().uiPageMode = uiPageMode;
            core.parm().starSplitStrategy = 3;
        })
    {
    }
};

// Runs an event loop, which the restart is to end; 99 if it does not.
int exitCodeOfConfirming(const TestDialog& dialog)
{
    QTimer::singleShot(0, dialog.get(), [&dialog] { dialog.confirm(); });
    QTimer::singleShot(20000, dialog.get(), [] { QCoreApplication::exit(99); });
    return QCoreApplication::exec();
}

QString settingsFile() { return QDir::homePath() + QStringLiteral("/.com.kivotrade.tradeclient"); }

QStringList pageNames(const CNavWidget& list) { return list.items; }

void clickBar(const CTradeConfigWidget& dialog, int item)
{
    QTest::mouseClick(dialog.switchBar, Qt::LeftButton, {}, QPoint(219 * item + 109, 30));
}

void clickEntry(CNavWidget* list, int entry)
{
    QTest::mouseClick(list, Qt::LeftButton, {}, QPoint(60, 50 * entry + 25));
}

} // namespace

class tst_CTradeConfigWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void factoryMakesParentlessDialog();
    void progressLines();
    void exceptionWhileConstructingPropagates_data();
    void exceptionWhileConstructingPropagates();
    void parentAndWindowFlags();

    void everyStackStartsAtItsFirstPage();
    void switchBar();
    void systemPages_data();
    void systemPages();
    void otherPageLists();
    void frameTextsAreTranslated();
    void hiddenControls();
    void validators();
    void eventFilters();
    void tipLabelStartsHidden();
    void scaleFromFile_data();
    void scaleFromFile();
    void freshState();

    void everySignalHasOneReceiver_data();
    void everySignalHasOneReceiver();
    void navigationListsDriveTheirStacks();
    void inputSignalsHaveTheirEffect();
    void protectionPriceSignalsHaveTheirEffect();
    void scaleEditAsksForARestart();
    void scaleSetWhileLoadingIsNoEdit();
    void languageChangeIsReported();

    void mouseNavigation();
    void interfacePageIsUnreachable();
    void setCurrentIndex();
    void slotsAreInvokable();

    void cancelClosesTheDialog();
    void cancelClosesTheParent();
    void confirmSavesOnceAndCloses();
    void confirmClosesTheParent();
    void closingDeletesNothing();
    void canBeShownAndConfirmedAgain();

    void refusedSave();
    void validityIsLoggedUpToTheFirstFalse();
    void noValidityEntriesNoLog();
    void restartComesBeforeValidation();
    void noToTheRestartSavesAndCloses();
    void yesToTheRestartSavesAndQuits();
    void yesToTheRestartOfAnInvalidInputWritesNothing();
    void restartIsAskedAgain();
    void unchangedScaleAsksNothing();
};

void tst_CTradeConfigWidget::init() { QDir(settingsFile()).removeRecursively(); }

void tst_CTradeConfigWidget::factoryMakesParentlessDialog()
{
    FakeTrade trade;
    trade.setDistinctShortcuts();
    const std::unique_ptr<QWidget> widget(static_cast<QWidget*>(CreateModuleWidget(&trade)));
    auto* const dialog = qobject_cast<CTradeConfigWidget*>(widget.get());
    QVERIFY(dialog);
    QCOMPARE(static_cast<void*>(dialog), static_cast<void*>(widget.get()));
    QVERIFY(!widget->parentWidget());
    QVERIFY(!widget->isVisible());
    QCOMPARE(dialog->m_pTrade, &trade);
    QCOMPARE(trade.saves, 0);
    QCOMPARE(trade.foreignCalls, 0);
}

void tst_CTradeConfigWidget::progressLines()
{
    LoggingTrade trade;
    trade.setDistinctShortcuts();
    const MessageCapture log;
    const CTradeConfigWidget dialog(&trade);
    QCOMPARE(log.texts(QtDebugMsg).join(QLatin1Char('|')),
             QStringLiteral("CTradeConfigWidget 1|get|CTradeConfigWidget 2|CTradeConfigWidget 3|"
                            "get|CTradeConfigWidget 4"));
    int progress = 0;
    for (const MessageCapture::Line& line : log.lines()) {
        if (line.text == QLatin1String("get"))
            continue;
        ++progress;
        QCOMPARE(line.type, QtDebugMsg);
        QVERIFY2(line.file.contains(QLatin1String("CTradeConfigWidget")), qPrintable(line.file));
        // Compilers differ in the space before an asterisk.
        QVERIFY2(QString(line.function)
                     .replace(QLatin1String(" *"), QLatin1String("*"))
                     .contains(QLatin1String(
                         "CTradeConfigWidget::CTradeConfigWidget(KivoTrade::ITrade*, QWidget*)")),
                 qPrintable(line.function));
    }
    QCOMPARE(progress, 4);
}

void tst_CTradeConfigWidget::exceptionWhileConstructingPropagates_data()
{
    QTest::addColumn<int>("atCall");
    QTest::newRow("while building the frame") << 1;
    QTest::newRow("while loading") << 2;
}

// The leak sanitizer sees what would be left behind.
void tst_CTradeConfigWidget::exceptionWhileConstructingPropagates()
{
    QFETCH(int, atCall);
    ThrowingTrade trade(atCall);
    const int before = QApplication::allWidgets().size();
    QVERIFY_EXCEPTION_THROWN(CreateModuleWidget(&trade), std::runtime_error);
    QCOMPARE(QApplication::allWidgets().size(), before);
}

void tst_CTradeConfigWidget::parentAndWindowFlags()
{
    FakeTrade trade;
    QWidget host;
    const CTradeConfigWidget child(&trade, &host);
    QCOMPARE(child.parentWidget(), &host);
    QVERIFY(!child.isWindow());
    const CTradeConfigWidget window(&trade);
    QVERIFY(window.isWindow());
    QVERIFY(!window.testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(window.windowFlags() & ~Qt::WindowType_Mask,
             QWidget().windowFlags() & ~Qt::WindowType_Mask);
    QCOMPARE(window.size(), QSize(659, 641));
}

void tst_CTradeConfigWidget::everyStackStartsAtItsFirstPage()
{
    Opened opened;
    QCOMPARE(opened->ui.stackedWidget->currentIndex(), 0);
    QCOMPARE(opened->ui.stackedWidget_system->currentIndex(), 0);
    QCOMPARE(opened->ui.stackedWidget_trade->currentIndex(), 0);
    QCOMPARE(opened->ui.stackedWidget_shortcut->currentIndex(), 0);
}

void tst_CTradeConfigWidget::switchBar()
{
    Opened opened;
    CSwitchEx& bar = *opened->switchBar;
    QCOMPARE(bar.parentWidget(), opened->ui.widget);
    QCOMPARE(bar.objectName(), QStringLiteral("switchex_widget"));
    QCOMPARE(bar.minimumSize(), QSize(657, 60));
    QCOMPARE(bar.maximumWidth(), 657);
    QCOMPARE(int(bar.mode), 7);
    QCOMPARE(bar.orientation, Qt::Horizontal);
    QCOMPARE(bar.padding, QMarginsF(0, 0, 0, 0));
    QCOMPARE(bar.itemSize, 219);
    QVERIFY(!bar.backgroundEnable);
    QCOMPARE(opened->ui.horizontalLayout->count(), 0);

    opened->show();
    QCOMPARE(bar.geometry(), QRect(0, 0, 657, 60));
    QVERIFY(bar.isVisible());
    QStringList labels;
    for (const SwitchItem* const item : qAsConst(bar.items)) {
        labels << item->label;
        QVERIFY(!item->menu);
        QVERIFY(!item->isImage);
        QVERIFY(!item->isSeparator);
        QCOMPARE(item->rect.width(), 219.0);
    }
    QCOMPARE(labels,
             (QStringList{QStringLiteral("系统设置"), QStringLiteral("交易设置"),
                          QStringLiteral("快捷键设置")}));
    QVERIFY(bar.endItems.isEmpty());
    QCOMPARE(bar.curSel, bar.items.first());
}

void tst_CTradeConfigWidget::systemPages_data()
{
    QTest::addColumn<int>("pages");
    for (const int mode : {2, 0, 1, 3, -2, 258, 2147483647})
        QTest::newRow(qPrintable(QString::number(mode))) << (mode == 2 ? 3 : 2);
}

void tst_CTradeConfigWidget::systemPages()
{
    QFETCH(int, pages);
    Opened opened(QByteArray(QTest::currentDataTag()).toInt());
    QCOMPARE(pageNames(*opened->ui.widget_system),
             (QStringList{QStringLiteral("基础设置"), QStringLiteral("联动设置"),
                          QStringLiteral("界面设置")}
                  .mid(0, pages)));
    QCOMPARE(opened->ui.widget_system->count, pages);
}

void tst_CTradeConfigWidget::otherPageLists()
{
    Opened opened;
    QCOMPARE(pageNames(*opened->ui.widget_trade),
             (QStringList{QStringLiteral("默认设置"), QStringLiteral("提示设置")}));
    QCOMPARE(pageNames(*opened->ui.widget_shortcut),
             (QStringList{QStringLiteral("普通快捷设置"), QStringLiteral("信用快捷设置"),
                          QStringLiteral("全局交易设置")}));
}

void tst_CTradeConfigWidget::frameTextsAreTranslated()
{
    const MarkingTranslator translator;
    Opened opened;
    QStringList texts;
    for (const SwitchItem* const item : qAsConst(opened->switchBar->items))
        texts << item->label;
    for (const CNavWidget* const list :
         {opened->ui.widget_system, opened->ui.widget_trade, opened->ui.widget_shortcut})
        texts << list->items;
    QCOMPARE(texts.size(), 11);
    for (const QString& text : qAsConst(texts))
        QVERIFY2(text.startsWith(QLatin1String("T:")), qPrintable(text));

    opened->inputValidity.insert(QStringLiteral("a"), false);
    const ModalAnswer answer = ModalAnswer::pressing(QMessageBox::Ok);
    opened->WriteAllParm();
    QCOMPARE(answer.title(), QStringLiteral("T:提示"));
    QCOMPARE(answer.text(), QStringLiteral("T:") + refusal);
}

void tst_CTradeConfigWidget::hiddenControls()
{
    const TestDialog dialog([](FakeTrade& core) {
        core.parm().uiPageMode = 2;
        core.parm().splitStrategy = 1;
        core.parm().starSplitStrategy = 3;
    });
    QStringList hidden;
    for (const QWidget* const widget : dialog->findChildren<QWidget*>()) {
        const QWidget* const parent = widget->parentWidget();
        const bool onPage = parent->objectName().startsWith(QLatin1String("page"));
        if (onPage && widget->isHidden())
            hidden << widget->objectName();
    }
    hidden.sort();
    QStringList expected{
        QStringLiteral("label_14"),
        QStringLiteral("comboBox_system_fontSize"),
        QStringLiteral("label_15"),
        QStringLiteral("comboBox_system_language"),
        QStringLiteral("label_8"),
        QStringLiteral("line_5"),
        QStringLiteral("label_9"),
        QStringLiteral("label_22"),
        QStringLiteral("comboBox_system_buyType"),
        QStringLiteral("comboBox_system_sellType"),
        QStringLiteral("label_11"),
        QStringLiteral("comboBox_system_hqLink2"),
        // These two by the strategies of this record.
        QStringLiteral("lineEdit_trade_desc"),
        QStringLiteral("label_trade_desc"),
        QStringLiteral("lineEdit_trade_kc_desc"),
        QStringLiteral("label_trade_kc_desc"),
    };
    expected.sort();
    QCOMPARE(hidden, expected);
    QVERIFY(dialog->ui.comboBox_system_fontSize->isEnabled());
}

void tst_CTradeConfigWidget::validators()
{
    Opened opened;
    QSet<const QValidator*> shared;
    int edits = 0;
    for (const QLineEdit* const edit : opened->findChildren<QLineEdit*>()) {
        ++edits;
        const auto* const validator = qobject_cast<const QIntValidator*>(edit->validator());
        QVERIFY2(validator, qPrintable(edit->objectName()));
        QCOMPARE(validator->parent(), opened.get());
        QCOMPARE(validator->bottom(), 0);
        if (edit == opened->ui.lineEdit_system_lockTime) {
            QCOMPARE(validator->top(), 1000);
        } else {
            QCOMPARE(validator->top(), 10000000);
            shared << validator;
        }
    }
    // Nine in the form, the scale's inner one, thirteen in each table of keys, two fixed keys.
    QCOMPARE(edits, 38);
    QCOMPARE(shared.size(), 1);
    QVERIFY(!shared.contains(opened->ui.lineEdit_system_lockTime->validator()));
    QCOMPARE(opened->findChildren<QIntValidator*>(QString(), Qt::FindDirectChildrenOnly).size(), 2);
}

void tst_CTradeConfigWidget::eventFilters()
{
    FakeTrade trade;
    FilterWatcher dialog(&trade);
    QList<QObject*> expected{dialog.ui.comboBox_trade_kc_buyRise,
                             dialog.ui.comboBox_trade_kc_sellRise};
    for (QLineEdit* const edit : dialog.findChildren<QLineEdit*>())
        expected << edit;
    QCOMPARE(expected.size(), 40);
    for (QObject* const object : dialog.findChildren<QObject*>()) {
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(object, &event);
    }
    QCOMPARE(dialog.filtered.size(), expected.size()); // each once
    for (QObject* const object : qAsConst(expected))
        QVERIFY2(dialog.filtered.contains(object), qPrintable(object->objectName()));
    QVERIFY(!dialog.consumedAny);
}

void tst_CTradeConfigWidget::tipLabelStartsHidden()
{
    Opened opened;
    QVERIFY(opened->tipLabel);
    QCOMPARE(opened->tipLabel->parentWidget(), opened.get());
    QVERIFY(opened->tipLabel->isHidden());
    QCOMPARE(opened->tipLabel->text(), QString());
    QCOMPARE(opened->tipLabel->styleSheet(), QStringLiteral("color:red;"));
    opened->show();
    QVERIFY(!opened->tipLabel->isVisible());
}

void tst_CTradeConfigWidget::scaleFromFile_data()
{
    QTest::addColumn<QByteArray>("content"); // null: no file
    QTest::addColumn<int>("shown");
    const auto row = [](const char* name, const char* content, int shown) {
        QTest::newRow(name) << QByteArray(content) << shown;
    };
    row("no file", nullptr, 100);
    row("no key", "[UI]\nlanguage=zh_CN\n", 100);
    row("below the range", "[UI]\nscale=99\n", 100);
    row("bottom", "[UI]\nscale=100\n", 100);
    row("between steps", "[UI]\nscale=103\n", 103);
    row("inside", "[UI]\nscale=150\n", 150);
    row("top", "[UI]\nscale=300\n", 300);
    row("above the range", "[UI]\nscale=301\n", 300);
    row("negative", "[UI]\nscale=-150\n", 100);
    row("words", "[UI]\nscale=large\n", 100);
    row("empty", "[UI]\nscale=\n", 100);
    row("broken file", "[[[=\n\"", 100);
    row("another group", "[Other]\nscale=150\n", 100);
}

void tst_CTradeConfigWidget::scaleFromFile()
{
    QFETCH(QByteArray, content);
    QFETCH(int, shown);
    QVERIFY(QDir().mkpath(settingsFile() + QStringLiteral("/config")));
    const QString path = settingsFile() + QStringLiteral("/config/system_settings.ini");
    if (!content.isNull())
        writeFile(path, content);
    Opened opened;
    QCOMPARE(opened->ui.spinBox_scale->value(), shown);
    QVERIFY(!opened->restartNeeded);
    opened->WriteAllParm(); // asks nothing and leaves the file alone
    QCOMPARE(opened.trade.saves, 1);
    QCOMPARE(QFile::exists(path), !content.isNull());
    QCOMPARE(contentOf(path), content);
}

void tst_CTradeConfigWidget::freshState()
{
    Opened opened;
    QVERIFY(opened->inputValidity.isEmpty());
    QVERIFY(!opened->restartNeeded);
    QVERIFY(opened->starBuyRiseText.isEmpty());
    QVERIFY(opened->starSellRiseText.isEmpty());
    for (const QLineEdit* const edit :
         {opened->ui.lineEdit_trade_baseCount, opened->ui.lineEdit_trade_high,
          opened->ui.lineEdit_system_lockTime, opened->ui.lineEdit_trade_kc_baseCount})
        QVERIFY(edit->styleSheet().isEmpty());
}

void tst_CTradeConfigWidget::everySignalHasOneReceiver_data()
{
    QTest::addColumn<QByteArray>("signal");
    const auto row = [](const char* sender, const char* signal) {
        QTest::newRow(sender) << QByteArray(signal);
    };
    row("widget_system", SIGNAL(signal_onclicked(int)));
    row("widget_trade", SIGNAL(signal_onclicked(int)));
    row("widget_shortcut", SIGNAL(signal_onclicked(int)));
    row("pushButton_cancle", SIGNAL(clicked(bool)));
    row("pushButton_confirm", SIGNAL(clicked(bool)));
    row("pushButton_kc_buyRise", SIGNAL(clicked(bool)));
    row("pushButton_kc_sellRise", SIGNAL(clicked(bool)));
    row("comboBox_trade_split", SIGNAL(currentIndexChanged(int)));
    row("comboBox_trade_kc_split", SIGNAL(currentIndexChanged(int)));
    row("checkBox_trade_fc", SIGNAL(toggled(bool)));
    row("checkBox_trade_kc_fc", SIGNAL(toggled(bool)));
    row("comboBox_system_language", SIGNAL(currentIndexChanged(int)));
    row("comboBox_trade_kc_buyRise", SIGNAL(editTextChanged(QString)));
    row("comboBox_trade_kc_sellRise", SIGNAL(editTextChanged(QString)));
    row("spinBox_scale", SIGNAL(valueChanged(QString)));
}

void tst_CTradeConfigWidget::everySignalHasOneReceiver()
{
    QFETCH(QByteArray, signal);
    Opened opened;
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const QWidget* const sender = opened->findChild<QWidget*>(name);
    QVERIFY(sender);
    QCOMPARE(sender->receivers(signal.constData()), 1);
    // The bare form connects nothing.
    QWidget bare;
    Ui_CTradeConfigWidget form;
    form.setupUi(&bare);
    QCOMPARE(bare.findChild<QWidget*>(name)->receivers(signal.constData()), 0);
}

void tst_CTradeConfigWidget::navigationListsDriveTheirStacks()
{
    Opened opened;
    const std::pair<CNavWidget*, QStackedWidget*> groups[]
        = {{opened->ui.widget_system, opened->ui.stackedWidget_system},
           {opened->ui.widget_trade, opened->ui.stackedWidget_trade},
           {opened->ui.widget_shortcut, opened->ui.stackedWidget_shortcut}};
    for (const auto& [list, stack] : groups) {
        for (const int index : {1, 2, 0}) {
            Q_EMIT list->signal_onclicked(index);
            for (const auto& [otherList, otherStack] : groups)
                QCOMPARE(otherStack->currentIndex(), otherStack == stack ? index : 0);
        }
    }
}

void tst_CTradeConfigWidget::inputSignalsHaveTheirEffect()
{
    Opened opened;
    Ui_CTradeConfigWidget& ui = opened->ui;
    ui.comboBox_trade_split->setCurrentIndex(2);
    QVERIFY(ui.lineEdit_trade_low->isHidden());
    QVERIFY(!ui.lineEdit_trade_desc->isHidden());
    QVERIFY(ui.lineEdit_trade_kc_desc->isHidden());
    ui.comboBox_trade_kc_split->setCurrentIndex(1);
    QCOMPARE(ui.lineEdit_trade_kc_high->text(), QStringLiteral("50000"));
    QCOMPARE(ui.lineEdit_trade_high->text(), QStringLiteral("0"));
    ui.checkBox_trade_fc->setChecked(true);
    QVERIFY(ui.lineEdit_trade_baseCount->isEnabled());
    QVERIFY(!ui.lineEdit_trade_kc_baseCount->isEnabled());
    ui.checkBox_trade_kc_fc->setChecked(true);
    QVERIFY(ui.lineEdit_trade_kc_baseCount->isEnabled());
    ui.checkBox_trade_fc->setChecked(false);
    QVERIFY(!ui.lineEdit_trade_baseCount->isEnabled());
    QVERIFY(ui.lineEdit_trade_kc_baseCount->isEnabled());
}

void tst_CTradeConfigWidget::protectionPriceSignalsHaveTheirEffect()
{
    Opened opened;
    Ui_CTradeConfigWidget& ui = opened->ui;
    ui.pushButton_kc_buyRise->click();
    QVERIFY(ui.comboBox_trade_kc_buyRise->isEditable());
    QVERIFY(!ui.comboBox_trade_kc_sellRise->isEditable());
    ui.comboBox_trade_kc_buyRise->setEditText(QStringLiteral("17"));
    QCOMPARE(opened->starBuyRiseText, QStringLiteral("17"));
    QCOMPARE(opened->starSellRiseText, QString());
    ui.pushButton_kc_sellRise->click();
    QVERIFY(ui.comboBox_trade_kc_sellRise->isEditable());
    ui.comboBox_trade_kc_sellRise->setEditText(QStringLiteral("18"));
    QCOMPARE(opened->starBuyRiseText, QStringLiteral("17"));
    QCOMPARE(opened->starSellRiseText, QStringLiteral("18"));
}

void tst_CTradeConfigWidget::scaleEditAsksForARestart()
{
    Opened opened;
    QVERIFY(!opened->restartNeeded);
    opened->ui.spinBox_scale->setValue(100); // the value that it has
    QVERIFY(!opened->restartNeeded);
    opened->ui.spinBox_scale->stepUp();
    QCOMPARE(opened->ui.spinBox_scale->value(), 105);
    QVERIFY(opened->restartNeeded);
    opened->ui.spinBox_scale->stepDown();
    QVERIFY(opened->restartNeeded);
}

void tst_CTradeConfigWidget::scaleSetWhileLoadingIsNoEdit()
{
    ScaleTurningTrade trade;
    const CTradeConfigWidget dialog(&trade);
    QCOMPARE(dialog.ui.spinBox_scale->value(), 200);
    QVERIFY(trade.wasNeeded);
    QVERIFY(!dialog.restartNeeded);
}

void tst_CTradeConfigWidget::languageChangeIsReported()
{
    Opened opened;
    const ModalAnswer answer = ModalAnswer::clicking(QStringLiteral("否"));
    opened->ui.comboBox_system_language->setCurrentIndex(2);
    QCOMPARE(answer.text(), restartQuestion);
    QCOMPARE(opened.trade.parm().languageIndex, 2);
    QCOMPARE(opened.trade.saves, 0);
    QVERIFY(!opened->restartNeeded);
}

void tst_CTradeConfigWidget::mouseNavigation()
{
    Opened opened;
    Ui_CTradeConfigWidget& ui = opened->ui;
    opened->show();
    QVERIFY(ui.page_3->isVisible());

    clickEntry(ui.widget_system, 1);
    QVERIFY(ui.page_4->isVisible());
    clickEntry(ui.widget_system, 2);
    QVERIFY(ui.page_5->isVisible());
    QVERIFY(ui.spinBox_scale->isVisible());
    QVERIFY(!ui.comboBox_system_language->isVisible());
    QVERIFY(!ui.comboBox_system_fontSize->isVisible());

    clickBar(*opened, 1);
    QVERIFY(ui.page_2->isVisible());
    QVERIFY(!ui.page_5->isVisible());
    QVERIFY(ui.page_6->isVisible());
    clickEntry(ui.widget_trade, 1);
    QVERIFY(ui.page_7->isVisible());
    clickEntry(ui.widget_trade, 2); // below the list: the splitting pages are not reached
    clickEntry(ui.widget_trade, 3);
    QVERIFY(ui.page_7->isVisible());
    QVERIFY(!ui.page_8->isVisible());
    QVERIFY(!ui.page_9->isVisible());

    clickBar(*opened, 2);
    QVERIFY(ui.page_16->isVisible());
    clickEntry(ui.widget_shortcut, 1);
    QVERIFY(ui.page_10->isVisible());
    clickEntry(ui.widget_shortcut, 2);
    QVERIFY(ui.page_11->isVisible());
    clickEntry(ui.widget_shortcut, 0);
    QVERIFY(ui.page_16->isVisible());

    // Every group comes back as it was left.
    clickBar(*opened, 0);
    QVERIFY(ui.page_5->isVisible());
    clickBar(*opened, 1);
    QVERIFY(ui.page_7->isVisible());
}

void tst_CTradeConfigWidget::interfacePageIsUnreachable()
{
    Opened opened(1);
    opened->show();
    clickEntry(opened->ui.widget_system, 1);
    clickEntry(opened->ui.widget_system, 2);
    QVERIFY(opened->ui.page_4->isVisible());
    QVERIFY(!opened->ui.page_5->isVisible());
}

void tst_CTradeConfigWidget::setCurrentIndex()
{
    Opened opened;
    for (const int index : {2, 1, 0}) {
        opened->SetCurrentIndex(index);
        QCOMPARE(opened->ui.stackedWidget->currentIndex(), index);
    }
    QCOMPARE(opened->ui.stackedWidget_system->currentIndex(), 0);
}

void tst_CTradeConfigWidget::slotsAreInvokable()
{
    Opened opened;
    QObject* const dialog = opened.get();
    QVERIFY(QMetaObject::invokeMethod(dialog, "SetCurrentIndex", Q_ARG(int, 2)));
    QCOMPARE(opened->ui.stackedWidget->currentIndex(), 2);

    QVERIFY(QDir().mkpath(settingsFile() + QStringLiteral("/config")));
    const QString path = settingsFile() + QStringLiteral("/config/system_settings.ini");
    opened->ui.spinBox_scale->setValue(125);
    QVERIFY(QMetaObject::invokeMethod(dialog, "saveUISettings"));
    QCOMPARE(QSettings(path, QSettings::IniFormat).value(QStringLiteral("UI/scale")).toInt(), 125);

    QSettings(path, QSettings::IniFormat)
        .setValue(QStringLiteral("UI/language"), QStringLiteral("en_US"));
    QVERIFY(QMetaObject::invokeMethod(dialog, "loadLanguage"));
    QCOMPARE(opened->ui.comboBox_system_language->currentIndex(), 2);

    {
        const ModalAnswer answer = ModalAnswer::clicking(QStringLiteral("否"));
        QVERIFY(QMetaObject::invokeMethod(dialog, "restart"));
        QCOMPARE(answer.text(), restartQuestion);
    }

    QVERIFY(QMetaObject::invokeMethod(dialog, "ShowInputErrorMsg",
                                      Q_ARG(QObject*, opened->ui.lineEdit_trade_high),
                                      Q_ARG(QString, QStringLiteral("a tip")), Q_ARG(int, 170)));
    QCOMPARE(opened->tipLabel->text(), QStringLiteral("a tip"));
    QCOMPARE(opened->tipLabel->width(), 170);

    opened->inputValidity.insert(QStringLiteral("lineEdit_trade_low"), false);
    QVERIFY(QMetaObject::invokeMethod(dialog, "CheckSplitIsOk",
                                      Q_ARG(QString, QStringLiteral("lineEdit_trade_high"))));
    QVERIFY(opened->inputValidity.value(QStringLiteral("lineEdit_trade_low")));
}

void tst_CTradeConfigWidget::cancelClosesTheDialog()
{
    Opened opened;
    const int gets = opened.trade.gets;
    const QByteArray before = opened.trade.text(&TradeParm::stockShortcuts, 0);
    opened->show();
    opened->ui.comboBox_trade_buyPrice->setCurrentIndex(5);
    opened->inputValidity.insert(QStringLiteral("anything"), false);
    QTest::mouseClick(opened->ui.pushButton_cancle, Qt::LeftButton);
    QVERIFY(!opened->isVisible());
    QCOMPARE(opened.trade.gets, gets);
    QCOMPARE(opened.trade.saves, 0);
    QCOMPARE(opened.trade.parm().defaultBuyPrice, 0);
    QCOMPARE(opened.trade.text(&TradeParm::stockShortcuts, 0), before);
    QCOMPARE(opened->ui.comboBox_trade_buyPrice->currentIndex(), 5);
}

void tst_CTradeConfigWidget::cancelClosesTheParent()
{
    FakeTrade trade;
    QWidget grandparent;
    auto* const parent = new QWidget(&grandparent);
    auto* const dialog = new CTradeConfigWidget(&trade, parent);
    grandparent.show();
    QVERIFY(dialog->isVisible());
    dialog->ui.pushButton_cancle->click();
    QVERIFY(parent->isHidden());
    QVERIFY(!dialog->isHidden()); // the parent was closed, not the dialog
    QVERIFY(grandparent.isVisible());
    QCOMPARE(trade.saves, 0);
}

void tst_CTradeConfigWidget::confirmSavesOnceAndCloses()
{
    Opened opened;
    const QByteArray reserved = opened.trade.reservedBytes();
    opened->show();
    opened->ui.comboBox_trade_buyPrice->setCurrentIndex(5);
    opened->inputValidity.insert(QStringLiteral("lineEdit_trade_high"), true);
    QTest::mouseClick(opened->ui.pushButton_confirm, Qt::LeftButton);
    QCOMPARE(opened.trade.saves, 1);
    QCOMPARE(opened.trade.gets, 3);
    QCOMPARE(opened.trade.parm().defaultBuyPrice, 5);
    QVERIFY(!opened->isVisible());
    QCOMPARE(opened.trade.reservedBytes(), reserved);
}

void tst_CTradeConfigWidget::confirmClosesTheParent()
{
    FakeTrade trade;
    trade.setDistinctShortcuts();
    QWidget parent;
    auto* const dialog = new CTradeConfigWidget(&trade, &parent);
    parent.show();
    dialog->ui.pushButton_confirm->click();
    QCOMPARE(trade.saves, 1);
    QVERIFY(!parent.isVisible());
    QVERIFY(!dialog->isHidden());
}

void tst_CTradeConfigWidget::closingDeletesNothing()
{
    Opened opened;
    const QPointer<QWidget> alive(opened.get());
    opened->show();
    opened.confirm();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(alive);
}

void tst_CTradeConfigWidget::canBeShownAndConfirmedAgain()
{
    Opened opened;
    for (int round = 1; round <= 3; ++round) {
        opened->show();
        opened->ui.comboBox_trade_buyCount->setCurrentIndex(round);
        opened.confirm();
        QVERIFY(!opened->isVisible());
        QCOMPARE(opened.trade.saves, round);
        QCOMPARE(opened.trade.parm().defaultBuyQty, round);
    }
}

void tst_CTradeConfigWidget::refusedSave()
{
    Opened opened;
    opened->show();
    opened->ui.comboBox_trade_buyPrice->setCurrentIndex(5);
    opened->inputValidity.insert(QStringLiteral("lineEdit_trade_high"), true);
    opened->inputValidity.insert(QStringLiteral("lineEdit_trade_low"), false);
    const QByteArray before(reinterpret_cast<const char*>(&opened.trade.parm()), 128);
    const int gets = opened.trade.gets;
    for (int press = 0; press < 2; ++press) {
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QMessageBox::StandardButtons buttons = QMessageBox::NoButton;
        QWidget* owner = nullptr;
        const ModalAnswer answer([&](QWidget* window) {
            auto* const box = qobject_cast<QMessageBox*>(window);
            QVERIFY(box);
            icon = box->icon();
            buttons = box->standardButtons();
            owner = box->parentWidget();
            box->button(QMessageBox::Ok)->click();
        });
        opened.confirm();
        QCOMPARE(answer.title(), QStringLiteral("提示"));
        QCOMPARE(answer.text(), refusal);
        QCOMPARE(icon, QMessageBox::Information);
        QCOMPARE(buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(owner, opened.get());
        QVERIFY(opened->isVisible());
        QCOMPARE(opened.trade.gets, gets);
        QCOMPARE(opened.trade.saves, 0);
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(&opened.trade.parm()), 128), before);
        QCOMPARE(opened->ui.comboBox_trade_buyPrice->currentIndex(), 5);
    }
    opened->inputValidity[QStringLiteral("lineEdit_trade_low")] = true;
    opened.confirm();
    QCOMPARE(opened.trade.saves, 1);
    QVERIFY(!opened->isVisible());
}

void tst_CTradeConfigWidget::validityIsLoggedUpToTheFirstFalse()
{
    Opened opened;
    opened->inputValidity.insert(QStringLiteral("b"), true);
    opened->inputValidity.insert(QStringLiteral("d"), false);
    opened->inputValidity.insert(QStringLiteral("a"), true);
    opened->inputValidity.insert(QStringLiteral("c"), false);
    QStringList lines;
    {
        const MessageCapture log;
        const ModalAnswer answer = ModalAnswer::pressing(QMessageBox::Ok);
        opened->WriteAllParm();
        lines = log.texts(QtDebugMsg);
    }
    QCOMPARE(lines,
             (QStringList{QStringLiteral("a : true"), QStringLiteral("b : true"),
                          QStringLiteral("c : false")}));

    opened->inputValidity[QStringLiteral("c")] = true;
    opened->inputValidity[QStringLiteral("d")] = true;
    {
        const MessageCapture log;
        opened->WriteAllParm();
        lines = log.texts(QtDebugMsg);
    }
    QCOMPARE(lines.join(QLatin1Char('|')), QStringLiteral("a : true|b : true|c : true|d : true"));
    QCOMPARE(opened.trade.saves, 1);
}

void tst_CTradeConfigWidget::noValidityEntriesNoLog()
{
    Opened opened;
    const MessageCapture log;
    opened->WriteAllParm();
    QCOMPARE(log.texts(QtDebugMsg), QStringList());
    QCOMPARE(opened.trade.saves, 1);
}

void tst_CTradeConfigWidget::restartComesBeforeValidation()
{
    QVERIFY(QDir().mkpath(settingsFile() + QStringLiteral("/config")));
    const QString path = settingsFile() + QStringLiteral("/config/system_settings.ini");
    Opened opened;
    opened->show();
    opened->ui.spinBox_scale->setValue(145);
    QVERIFY(!QFile::exists(path));
    opened->inputValidity.insert(QStringLiteral("lineEdit_trade_low"), false);

    bool savedBeforeTheQuestion = false;
    std::optional<ModalAnswer> refused;
    const ModalAnswer restart([&](QWidget* window) {
        savedBeforeTheQuestion
            = QSettings(path, QSettings::IniFormat).value(QStringLiteral("UI/scale")).toInt()
            == 145;
        refused.emplace([](QWidget* box) {
            qobject_cast<QMessageBox*>(box)->button(QMessageBox::Ok)->click();
        });
        for (auto* const button : window->findChildren<QPushButton*>()) {
            if (button->text() == QStringLiteral("否"))
                button->click();
        }
    });
    opened.confirm();
    QCOMPARE(restart.text(), restartQuestion);
    QVERIFY(savedBeforeTheQuestion);
    QVERIFY(refused);
    QCOMPARE(refused->text(), refusal);
    QVERIFY(opened->isVisible());
    QCOMPARE(opened.trade.saves, 0);
}

void tst_CTradeConfigWidget::noToTheRestartSavesAndCloses()
{
    Opened opened;
    opened->show();
    opened->ui.spinBox_scale->setValue(145);
    opened->ui.comboBox_trade_buyPrice->setCurrentIndex(4);
    const ModalAnswer restart = ModalAnswer::clicking(QStringLiteral("否"));
    opened.confirm();
    QCOMPARE(restart.text(), restartQuestion);
    QCOMPARE(opened.trade.saves, 1);
    QCOMPARE(opened.trade.parm().defaultBuyPrice, 4);
    QVERIFY(!opened->isVisible());
    QVERIFY(opened->restartNeeded);
}

void tst_CTradeConfigWidget::yesToTheRestartSavesAndQuits()
{
    Opened opened;
    opened->show();
    opened->ui.spinBox_scale->setValue(145);
    opened->ui.comboBox_trade_buyPrice->setCurrentIndex(4);
    const ModalAnswer restart = ModalAnswer::clicking(QStringLiteral("是"));
    QCOMPARE(exitCodeOfConfirming(opened), 0);
    QCOMPARE(opened.trade.saves, 1);
    QCOMPARE(opened.trade.parm().defaultBuyPrice, 4);
    QVERIFY(!opened->isVisible());
}

// The application is quitting already, so the refusal is not seen; it holds all the same.
void tst_CTradeConfigWidget::yesToTheRestartOfAnInvalidInputWritesNothing()
{
    Opened opened;
    opened->show();
    opened->ui.spinBox_scale->setValue(145);
    opened->ui.comboBox_trade_buyPrice->setCurrentIndex(4);
    opened->inputValidity.insert(QStringLiteral("lineEdit_trade_low"), false);
    const int gets = opened.trade.gets;
    const ModalAnswer restart = ModalAnswer::clicking(QStringLiteral("是"));
    QCOMPARE(exitCodeOfConfirming(opened), 0);
    QCOMPARE(opened.trade.saves, 0);
    QCOMPARE(opened.trade.gets, gets);
    QCOMPARE(opened.trade.parm().defaultBuyPrice, 0);
    QVERIFY(!opened->isHidden());
}

void tst_CTradeConfigWidget::restartIsAskedAgain()
{
    Opened opened;
    opened->ui.spinBox_scale->setValue(145);
    for (int press = 0; press < 2; ++press) {
        const ModalAnswer restart = ModalAnswer::clicking(QStringLiteral("否"));
        opened.confirm();
        QCOMPARE(restart.text(), restartQuestion);
    }
    QCOMPARE(opened.trade.saves, 2);
}

void tst_CTradeConfigWidget::unchangedScaleAsksNothing()
{
    Opened opened;
    opened.confirm(); // would block on a question
    QCOMPARE(opened.trade.saves, 1);
    QVERIFY(!QFile::exists(settingsFile() + QStringLiteral("/system_settings.ini")));
}

TRADECONFIG_TEST_MAIN(tst_CTradeConfigWidget)
#include "tst_CTradeConfigWidget.moc"
