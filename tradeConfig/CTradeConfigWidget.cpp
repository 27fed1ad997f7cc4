#include "tradeConfig/CTradeConfigWidget.h"

#include "tradeConfig/ITrade.h"
#include "tradeConfig/MarkShade.h"
#include "tradeConfig/MessageBox.h"
#include "tradeConfig/SwitchEx.h"
#include "tradeConfig/TableLineEdit.h"
#include "tradeConfig/TipLabel.h"
#include "tradeConfig/dialog/AccessibleNames.h"
#include "tradeConfig/dialog/ButtonKeys.h"
#include "tradeConfig/dialog/ChoiceLists.h"
#include "tradeConfig/dialog/InterfaceSettings.h"
#include "tradeConfig/dialog/PageKeys.h"
#include "tradeConfig/dialog/ParmBinding.h"
#include "tradeConfig/dialog/QuantityValidator.h"
#include "tradeConfig/dialog/RisePrice.h"
#include "tradeConfig/dialog/RowLabels.h"
#include "tradeConfig/dialog/RuleLines.h"
#include "tradeConfig/dialog/ShortcutTable.h"
#include "tradeConfig/dialog/SplitGroup.h"
#include "tradeConfig/dialog/TabWalk.h"
#include "tradeConfig/dialog/WheelGuard.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QMessageBox>
#include <QProcess>
#include <QSignalBlocker>

namespace {

constexpr int interfacePageMode = 2;

// The switch bar fills the width of the dialog as it opens, less its margins.
constexpr int barHeight = 60;
constexpr int barItemWidth = 219;
constexpr int barWidth = 657;

constexpr int largestQuantity = 10000000;
constexpr int longestLockMinutes = 1000;

} // namespace

CTradeConfigWidget::CTradeConfigWidget(QWidget* parent)
    : QWidget(parent)
{
    ui.setupUi(this);
    RowLabels::fit({ui.page_3, ui.page_4, ui.page_5, ui.page_6, ui.page_7});
    new RuleLines({ui.line_2, ui.line_3, ui.line_4, ui.line_5, ui.line_6, ui.line_7, ui.line_8,
                   ui.line_9, ui.line_10, ui.line_11, ui.line_12, ui.line_13, ui.line_14,
                   ui.line_15, ui.line_16, ui.line_28, ui.line_29, ui.line_30},
                  this);
    AccessibleNames::giveFrom({ui.label_7, ui.label_scale, ui.label_33, ui.label_30,
                               ui.label_trade_low, ui.label_trade_desc, ui.label_36, ui.label_39,
                               ui.label_trade_kc_low, ui.label_trade_kc_desc});
}

// Delegates, so that the destructor frees the bar's items when the host's core throws below.
CTradeConfigWidget::CTradeConfigWidget(KivoTrade::ITrade* trade, QWidget* parent)
    : CTradeConfigWidget(parent)
{
    m_pTrade = trade;
    qDebug("CTradeConfigWidget 1");
    InitWidget();
    qDebug("CTradeConfigWidget 2");
    InitConnect();
    qDebug("CTradeConfigWidget 3");
    ReadAllParm();
    qDebug("CTradeConfigWidget 4");
    restartNeeded = false;
}

CTradeConfigWidget::~CTradeConfigWidget()
{
    // The bar does not free its items by itself.
    if (switchBar)
        switchBar->ClearAll();
}

void CTradeConfigWidget::InitWidget()
{
    for (QStackedWidget* const stack : {ui.stackedWidget, ui.stackedWidget_system,
                                        ui.stackedWidget_trade, ui.stackedWidget_shortcut})
        stack->setCurrentIndex(0);

    initSwitchBar();

    QStringList systemPages{tr("基础设置"), tr("联动设置")};
    if (m_pTrade->GetTradeParm()->uiPageMode == interfacePageMode)
        systemPages << tr("界面设置");
    ui.widget_system->SetBtnList(systemPages);

    // Kept in the form, loaded and saved, but not offered.
    for (QWidget* const control : std::initializer_list<QWidget*>{
             ui.label_14, ui.comboBox_system_fontSize, ui.label_15, ui.comboBox_system_language,
             ui.label_8, ui.line_5, ui.label_9, ui.label_22, ui.comboBox_system_buyType,
             ui.comboBox_system_sellType, ui.label_11, ui.comboBox_system_hqLink2})
        control->hide();

    // The splitting pages of the trade group are deliberately not listed.
    ui.widget_trade->SetBtnList({tr("默认设置"), tr("提示设置")});
    ui.widget_shortcut->SetBtnList({tr("普通快捷设置"), tr("信用快捷设置"), tr("全局交易设置")});

    InitStockTable();
    InitCreditTable();
    InitWholeTable();

    initValidators();
    InitCombobox();

    ui.comboBox_trade_kc_buyRise->installEventFilter(this);
    ui.comboBox_trade_kc_sellRise->installEventFilter(this);
    ui.comboBox_system_fontSize->setEnabled(true);
    inputValidity.clear();

    tipLabel = new CTipLabel(QString(), true, this);
    tipLabel->hide();

    ui.spinBox_scale->setValue(InterfaceSettings::scale());

    initKeyboardAndWheel();
}

void CTradeConfigWidget::initKeyboardAndWheel()
{
    new PageKeys(*this, *switchBar, *ui.stackedWidget,
                 {{ui.widget_system, ui.stackedWidget_system},
                  {ui.widget_trade, ui.stackedWidget_trade},
                  {ui.widget_shortcut, ui.stackedWidget_shortcut}});
    TabWalk::lead({ui.tableWidget_shortcut, ui.tableWidget_credit, ui.tableWidget_whole},
                  {ui.pushButton_cancle, ui.pushButton_confirm});
    new ButtonKeys({ui.pushButton_cancle, ui.pushButton_confirm, ui.pushButton_kc_buyRise,
                    ui.pushButton_kc_sellRise},
                   this);
    new WheelGuard(*this);
}

void CTradeConfigWidget::initSwitchBar()
{
    switchBar = new CSwitchEx(ui.widget, Qt::Horizontal, QMargins(0, 0, 0, 0));
    switchBar->setObjectName(QStringLiteral("switchex_widget"));
    switchBar->setMinimumSize(0, barHeight);
    switchBar->changeMode(CSwitchEx::ModeNavButton);
    switchBar->setItemSize(barItemWidth);
    switchBar->setFixedWidth(barWidth);
    switchBar->setBackgroundColorEnable(false);

    const QString groups[] = {tr("系统设置"), tr("交易设置"), tr("快捷键设置")};
    SwitchItem* first = nullptr;
    for (int index = 0; index < int(std::size(groups)); ++index) {
        SwitchItem* const item = switchBar->AddNormalSwitch(
            groups[index], [this, index] { SetCurrentIndex(index); }, false, nullptr);
        if (index == 0)
            first = item;
    }
    switchBar->SetCurSel(first, true);
}

void CTradeConfigWidget::initValidators()
{
    auto* const shared = new QuantityValidator(0, largestQuantity, this);
    const QList<QLineEdit*> edits = findChildren<QLineEdit*>();
    for (QLineEdit* const edit : edits) {
        edit->installEventFilter(this);
        if (edit == ui.lineEdit_system_lockTime)
            (new QuantityValidator(0, longestLockMinutes, this))->guard(*edit);
        else if (edit->isReadOnly())
            edit->setValidator(shared); // shows a key
        else if (edit->parent() == ui.spinBox_scale)
            shared->guard(*ui.spinBox_scale);
        else {
            shared->guard(*edit);
            MarkShade::prepare(*edit); // its marks come in the event filter
        }
    }
}

void CTradeConfigWidget::InitConnect()
{
    connect(ui.widget_system, &CNavWidget::signal_onclicked, ui.stackedWidget_system,
            &QStackedWidget::setCurrentIndex);
    connect(ui.widget_trade, &CNavWidget::signal_onclicked, ui.stackedWidget_trade,
            &QStackedWidget::setCurrentIndex);
    connect(ui.widget_shortcut, &CNavWidget::signal_onclicked, ui.stackedWidget_shortcut,
            &QStackedWidget::setCurrentIndex);

    connect(ui.pushButton_cancle, &QPushButton::clicked, this, &CTradeConfigWidget::CloseDlg);
    connect(ui.pushButton_confirm, &QPushButton::clicked, this, &CTradeConfigWidget::WriteAllParm);
    connect(ui.pushButton_kc_buyRise, &QPushButton::clicked, this,
            &CTradeConfigWidget::ChangeComboboxKcBuyRise);
    connect(ui.pushButton_kc_sellRise, &QPushButton::clicked, this,
            &CTradeConfigWidget::ChangeComboboxKcSellRise);

    const auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(ui.comboBox_trade_split, indexChanged, this, &CTradeConfigWidget::SelectFcSplit);
    connect(ui.comboBox_trade_kc_split, indexChanged, this, &CTradeConfigWidget::SelectFcKcSplit);
    connect(ui.checkBox_trade_fc, &QCheckBox::toggled, this, &CTradeConfigWidget::OnclickedChecked);
    connect(ui.checkBox_trade_kc_fc, &QCheckBox::toggled, this,
            &CTradeConfigWidget::OnclickedKcChecked);
    connect(ui.comboBox_system_language, indexChanged, this, &CTradeConfigWidget::languageChanged);
    connect(ui.comboBox_trade_kc_buyRise, &QComboBox::editTextChanged, this,
            &CTradeConfigWidget::ChangeComboboxKcBuyRiseText);
    connect(ui.comboBox_trade_kc_sellRise, &QComboBox::editTextChanged, this,
            &CTradeConfigWidget::ChangeComboboxKcSellRiseText);

    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    connect(ui.spinBox_scale, QOverload<const QString&>::of(&QSpinBox::valueChanged), this,
            [this](const QString&) { restartNeeded = true; });
    QT_WARNING_POP
}

void CTradeConfigWidget::InitStockTable()
{
    const QVector<CTableLineEdit*> editors = ShortcutTable::stock.build(ui);
    for (CTableLineEdit* const editor : editors)
        connect(editor, &CTableLineEdit::signal_editFinished, this,
                &CTradeConfigWidget::CellEditFinished);
}

void CTradeConfigWidget::InitCreditTable()
{
    const QVector<CTableLineEdit*> editors = ShortcutTable::credit.build(ui);
    for (CTableLineEdit* const editor : editors)
        connect(editor, &CTableLineEdit::signal_editFinished, this,
                &CTradeConfigWidget::CellEditFinished2);
}

void CTradeConfigWidget::InitWholeTable() { ShortcutTable::buildGlobal(ui); }

void CTradeConfigWidget::InitCombobox() { ChoiceLists::fill(ui); }

void CTradeConfigWidget::SetCurrentIndex(int index) { ui.stackedWidget->setCurrentIndex(index); }

void CTradeConfigWidget::CloseDlg()
{
    QWidget* const target = parentWidget() ? parentWidget() : this;
    target->close();
}

// Loading and saving

void CTradeConfigWidget::ReadAllParm()
{
    using ParmBinding::Section;
    const TradeParm& parm = *m_pTrade->GetTradeParm();

    ParmBinding::load(Section::OrderEntry, parm, ui);
    ParmBinding::loadDefaultPage(parm, ui);
    ParmBinding::load(Section::Session, parm, ui);
    loadLanguage();
    ParmBinding::load(Section::Trading, parm, ui);

    SplitGroup::stock.load(parm, ui);
    SplitGroup::star.load(parm, ui);
    RisePrice::buy.load(parm, ui);
    RisePrice::sell.load(parm, ui);

    stockShortcutTexts = ParmBinding::loadShortcuts(parm, &TradeParm::stockShortcuts);
    creditShortcutTexts = ParmBinding::loadShortcuts(parm, &TradeParm::creditShortcuts);
    ShortcutTable::stock.setCellTexts(ui, stockShortcutTexts);
    ShortcutTable::credit.setCellTexts(ui, creditShortcutTexts);
}

void CTradeConfigWidget::WriteAllParm()
{
    if (restartNeeded) {
        saveUISettings();
        restart();
    }
    if (!everyInputIsValid())
        return;

    TradeParm& parm = *m_pTrade->GetTradeParm();
    ParmBinding::store(parm, ui);
    ParmBinding::storeDefaultPage(parm, ui);
    SplitGroup::stock.store(parm, ui);
    SplitGroup::star.store(parm, ui);
    RisePrice::buy.store(parm, ui);
    RisePrice::sell.store(parm, ui);
    ParmBinding::storeShortcuts(parm, &TradeParm::stockShortcuts,
                                ShortcutTable::stock.cellTexts(ui));
    ParmBinding::storeShortcuts(parm, &TradeParm::creditShortcuts,
                                ShortcutTable::credit.cellTexts(ui));

    m_pTrade->SaveTradeParm();
    CloseDlg();
}

bool CTradeConfigWidget::everyInputIsValid()
{
    for (auto entry = inputValidity.cbegin(); entry != inputValidity.cend(); ++entry) {
        qDebug().noquote() << entry.key() << ":" << entry.value();
        if (!entry.value()) {
            QMessageBox::information(
                this, tr("提示"),
                tr("存在不合理的修改参数\n请把红色标记的值修改为绿色标记后再次点击确定！"));
            return false;
        }
    }
    return true;
}

// Interface settings

void CTradeConfigWidget::loadLanguage()
{
    const QSignalBlocker blocker(ui.comboBox_system_language);
    ui.comboBox_system_language->setCurrentIndex(InterfaceSettings::languageIndex());
}

void CTradeConfigWidget::saveUISettings()
{
    InterfaceSettings::save(ui.comboBox_system_language->currentIndex(), ui.spinBox_scale->value());
}

void CTradeConfigWidget::languageChanged(int index)
{
    m_pTrade->GetTradeParm()->languageIndex = index;
    saveUISettings();
    restart();
}

void CTradeConfigWidget::restart()
{
    const auto answer = CMessageBox::question(this, QMessageBox::Warning,
                                              tr("部分修改需要重启后生效，确定现在重启吗？"));
    if (answer != QMessageBox::Yes)
        return;
    const QDir home(InterfaceSettings::dataDirectory());
    QProcess::startDetached(home.absoluteFilePath(QStringLiteral("restart")),
                            {QStringLiteral("jy")});
    QCoreApplication::exit(0);
}
