#include "bench/FloorDialog.h"

#include "tradeConfig/dialog/RowLabels.h"
#include "tradeConfig/dialog/RuleLines.h"
#include "tradeConfig/platform/HostPlatform.h"

#include "ui_FloorForm.h"

#include <QCoreApplication>
#include <QEvent>
#include <QIntValidator>
#include <QSettings>
#include <QShortcut>

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("CTradeConfigWidget", text);
}

// The record's strings lie where its packing puts them, so they are only ever copied.
QString textOf(const std::string& text)
{
    return QString::fromLocal8Bit(text.data(), int(text.size()));
}

constexpr int entryOfRow[13] = {0, 1, 5, 6, 2, 3, 4, 7, 8, 9, 10, 11, 12};

// Digits up to a value, and no more thought about them.
class DigitsUpTo : public QIntValidator {
public:
    DigitsUpTo(int top, QObject* parent)
        : QIntValidator(0, top, parent)
    {
    }

    State validate(QString& input, int&) const override
    {
        int value = 0;
        for (const QChar digit : qAsConst(input)) {
            value = value * 10 + digit.unicode() - '0';
            if (digit < QLatin1Char('0') || digit > QLatin1Char('9') || value > top())
                return Invalid;
        }
        return input.isEmpty() ? Intermediate : Acceptable;
    }
};

QTableWidgetItem* readOnlyItem(const QString& text)
{
    auto* const item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled
                   | Qt::ItemIsDropEnabled | Qt::ItemIsUserCheckable);
    return item;
}

QTableWidgetItem* headerItem(const QString& text)
{
    auto* const item = new QTableWidgetItem(text);
    item->setBackground(QApplication::palette().brush(QPalette::Active, QPalette::Button));
    item->setForeground(QApplication::palette().brush(QPalette::Active, QPalette::ButtonText));
    return item;
}

void setUpTable(QTableWidget* table, int rows)
{
    table->setFrameShape(QFrame::NoFrame);
    QHeaderView* const header = table->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Stretch);
    header->setEnabled(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setStyleSheet(QStringLiteral("background-color:rgba(235,235,235,0.28);font:18px;"
                                         "QHeaderView::section{font:18px '宋体'; "
                                         "padding-left:2px; }"));
    header->setFixedHeight(37);
    table->verticalHeader()->setVisible(false);
    table->verticalHeader()->setDefaultSectionSize(37);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setColumnCount(3);
    table->setHorizontalHeaderItem(0, headerItem(translated("功能说明")));
    table->setHorizontalHeaderItem(1, headerItem(translated("键位设定")));
    table->setHorizontalHeaderItem(2, headerItem(translated("设置说明")));
    table->setRowCount(rows);
}

FloorKeyEdit* addRow(QTableWidget* table, int row, const QString& function, const QString& key)
{
    table->setItem(row, 0, readOnlyItem(function));
    table->setItem(row, 2, readOnlyItem(translated("正常")));
    auto* const edit = new FloorKeyEdit;
    table->setCellWidget(row, 1, edit);
    edit->setStyleSheet(QStringLiteral("border:0px;"));
    edit->setText(key);
    QObject::connect(edit, &QLineEdit::editingFinished, edit, &FloorKeyEdit::finished);
    return edit;
}

} // namespace

FloorDialog::FloorDialog(KivoTrade::ITrade* trade)
    : m_form(std::make_unique<Ui_FloorForm>())
    , m_trade(trade)
{
    const TradeParm& parm = *trade->GetTradeParm();
    m_form->setupUi(this);
    RowLabels::fit(
        {m_form->page_3, m_form->page_4, m_form->page_5, m_form->page_6, m_form->page_7});
    new RuleLines({m_form->line_2, m_form->line_3, m_form->line_4, m_form->line_5, m_form->line_6,
                   m_form->line_7, m_form->line_8, m_form->line_9, m_form->line_10, m_form->line_11,
                   m_form->line_12, m_form->line_13, m_form->line_14, m_form->line_15,
                   m_form->line_16, m_form->line_28, m_form->line_29, m_form->line_30},
                  this);
    buildNavigation(parm);
    buildTables(parm);
    fillChoices();
    fillValues(parm);
    setValidators();
    connectAll();
    guideKeyboardAndWheel();

    m_tip = new QLabel(this);
    m_tip->resize(160, 20);
    m_tip->setStyleSheet(QStringLiteral("color:red;"));
    m_tip->hide();
}

FloorDialog::~FloorDialog() = default;

void FloorDialog::showGroup(int index) { m_form->stackedWidget->setCurrentIndex(index); }

void FloorDialog::buildNavigation(const TradeParm& parm)
{
    Ui_FloorForm& ui = *m_form;
    ui.stackedWidget_system->setCurrentIndex(0);
    ui.stackedWidget_shortcut->setCurrentIndex(0);

    m_bar = new FloorBar(ui.widget);
    m_bar->setObjectName(QStringLiteral("switchex_widget"));
    m_bar->setMinimumSize(0, 60);
    m_bar->setFixedWidth(657);
    m_bar->setFocusPolicy(Qt::NoFocus);
    m_bar->add(translated("系统设置"), 219);
    m_bar->add(translated("交易设置"), 219);
    m_bar->add(translated("快捷键设置"), 219);

    ui.widget_system->entries = QStringList{translated("基础设置"), translated("联动设置")};
    if (parm.uiPageMode == 2)
        ui.widget_system->entries << translated("界面设置");
    ui.widget_trade->entries = QStringList{translated("默认设置"), translated("提示设置")};
    ui.widget_shortcut->entries = QStringList{
        translated("普通快捷设置"), translated("信用快捷设置"), translated("全局交易设置")};

    ui.label_14->hide();
    ui.comboBox_system_fontSize->hide();
    ui.label_15->hide();
    ui.comboBox_system_language->hide();
    ui.label_8->hide();
    ui.line_5->hide();
    ui.label_9->hide();
    ui.label_22->hide();
    ui.comboBox_system_buyType->hide();
    ui.comboBox_system_sellType->hide();
    ui.label_11->hide();
    ui.comboBox_system_hqLink2->hide();
}

void FloorDialog::buildTables(const TradeParm& parm)
{
    Ui_FloorForm& ui = *m_form;
    const char* const functions[13]
        = {"买入股票", "卖出股票", "撤单", "查询",   "持仓",          "成交",         "委托",
           "全撤",     "撤买",     "撤卖", "撤最后", "批量下单-买入", "批量下单-卖出"};

    setUpTable(ui.tableWidget_shortcut, 13);
    for (int row = 0; row < 13; ++row) {
        m_stockTexts << textOf(parm.stockShortcuts[entryOfRow[row]]);
        m_stock.editors[row]
            = addRow(ui.tableWidget_shortcut, row, translated(functions[row]), m_stockTexts.last());
    }
    setUpTable(ui.tableWidget_credit, 13);
    for (int row = 0; row < 13; ++row) {
        m_credit.editors[row] = addRow(ui.tableWidget_credit, row, translated(functions[row]),
                                       textOf(parm.creditShortcuts[entryOfRow[row]]));
    }
    setUpTable(ui.tableWidget_whole, 2);
    m_global[0] = addRow(ui.tableWidget_whole, 0, translated("刷新"), QStringLiteral("F5"));
    m_global[1]
        = addRow(ui.tableWidget_whole, 1, translated("显示/隐藏交易模块"), QStringLiteral("F12"));
    m_global[0]->setEnabled(false);
    m_global[1]->setEnabled(false);
}

void FloorDialog::fillChoices()
{
    Ui_FloorForm& ui = *m_form;
    ui.comboBox_system_buy_type->addItems({translated("买入数量"), translated("买入金额")});
    ui.comboBox_system_sell_type->addItems({translated("卖出数量"), translated("卖出金额")});
    ui.comboBox_system_defaultView->addItems(
        {translated("股票买入"), translated("股票卖出"), translated("资金股票")});
    ui.comboBox_system_buyType->addItems({translated("限价买入"), translated("市价买入")});
    ui.comboBox_system_sellType->addItems({translated("限价卖出"), translated("市价卖出")});
    ui.comboBox_system_hqLink->addItems({translated("是"), translated("否")});
    ui.comboBox_system_hqLink2->addItems({translated("是"), translated("否")});
    ui.comboBox_system_fontSize->addItems(
        {translated("正常字体"), translated("大字体"), translated("特大字体")});
    ui.comboBox_system_language->addItems(
        {QStringLiteral("简体"), QStringLiteral("繁體"), QStringLiteral("English")});
    ui.comboBox_trade_buyPrice->addItems(
        {translated("卖一"), translated("卖二"), translated("卖三"), translated("卖四"),
         translated("卖五"), translated("最新价"), translated("空")});
    ui.comboBox_trade_buyCount->addItems({translated("空"), translated("全仓"),
                                          QStringLiteral("1/2"), QStringLiteral("1/3"),
                                          QStringLiteral("1/4"), QStringLiteral("1/5")});
    ui.comboBox_trade_sellPrice->addItems(
        {translated("买一"), translated("买二"), translated("买三"), translated("买四"),
         translated("买五"), translated("最新价"), translated("空")});
    ui.comboBox_trade_sellCount->addItems({translated("空"), translated("全仓"),
                                           QStringLiteral("1/2"), QStringLiteral("1/3"),
                                           QStringLiteral("1/4"), QStringLiteral("1/5")});
    ui.comboBox_trade_wt->addItems({translated("清空"), translated("保留代码"),
                                    translated("保留代码价格"), translated("保留全部")});
    ui.comboBox_trade_lineEdit->addItems({translated("光标在数字后"), translated("全选数字")});
    ui.comboBox_trade_split->addItems(
        {translated("固定数量"), translated("区间随机"), translated("数量递减")});
    ui.comboBox_trade_kc_split->addItems({translated("限价委托"), translated("市价委托"),
                                          translated("盘后定价"), translated("区间随机"),
                                          translated("数量递减")});
}

void FloorDialog::fillValues(const TradeParm& parm)
{
    Ui_FloorForm& ui = *m_form;
    ui.comboBox_system_buy_type->setCurrentIndex(parm.buyInputType);
    ui.comboBox_system_sell_type->setCurrentIndex(parm.sellInputType);
    ui.comboBox_system_defaultView->setCurrentIndex(parm.defaultPage == "ptmc"       ? 1
                                                        : parm.defaultPage == "zjgp" ? 2
                                                                                     : 0);
    ui.lineEdit_system_lockTime->setText(QString::number(parm.lockMinutes));
    ui.comboBox_system_buyType->setCurrentIndex(parm.defaultBuyMode);
    ui.comboBox_system_sellType->setCurrentIndex(parm.defaultSellMode);
    ui.comboBox_system_hqLink->setCurrentIndex(parm.quoteFollowsOrder);
    ui.comboBox_system_hqLink2->setCurrentIndex(parm.orderFollowsQuote);
    ui.comboBox_system_fontSize->setCurrentIndex(parm.fontSizeLevel);
    ui.comboBox_trade_buyPrice->setCurrentIndex(parm.defaultBuyPrice);
    ui.comboBox_trade_buyCount->setCurrentIndex(parm.defaultBuyQty);
    ui.comboBox_trade_sellPrice->setCurrentIndex(parm.defaultSellPrice);
    ui.comboBox_trade_sellCount->setCurrentIndex(parm.defaultSellQty);
    ui.comboBox_trade_wt->setCurrentIndex(parm.afterOrderForm);
    ui.checkBox_trade_pk->setChecked(parm.clickBookQty == 1);
    ui.comboBox_trade_lineEdit->setCurrentIndex(parm.inputBoxState);
    ui.checkBox_trade_cancle->setChecked(parm.confirmCancel == 1);
    ui.checkBox_trade_wt->setChecked(parm.confirmOrder == 1);
    ui.checkBox_trade_wtDlg->setChecked(parm.orderSuccessDialog == 1);

    ui.checkBox_trade_fc->setChecked(parm.splitEnabled == 1);
    ui.lineEdit_trade_baseCount->setText(QString::number(parm.splitBaseQty));
    ui.comboBox_trade_split->setCurrentIndex(parm.splitStrategy);
    ui.lineEdit_trade_high->setText(QString::number(parm.splitMaxQty));
    ui.lineEdit_trade_low->setText(QString::number(parm.splitMinQty));
    ui.lineEdit_trade_desc->setText(QString::number(parm.splitStepQty));
    ui.lineEdit_trade_desc->setVisible(parm.splitStrategy == 2);
    ui.label_trade_desc->setVisible(parm.splitStrategy == 2);

    ui.checkBox_trade_kc_fc->setChecked(parm.starSplitEnabled == 1);
    ui.lineEdit_trade_kc_baseCount->setText(QString::number(parm.starSplitBaseQty));
    ui.comboBox_trade_kc_split->setCurrentIndex(parm.starSplitStrategy);
    ui.lineEdit_trade_kc_high->setText(QString::number(parm.starSplitMaxQty));
    ui.lineEdit_trade_kc_low->setText(QString::number(parm.starSplitMinQty));
    ui.lineEdit_trade_kc_desc->setText(QString::number(parm.starSplitStepQty));
    ui.lineEdit_trade_kc_low->setVisible(parm.starSplitStrategy == 3);
    ui.label_trade_kc_low->setVisible(parm.starSplitStrategy == 3);

    ui.comboBox_trade_kc_buyRise->addItems({QString::number(parm.starBuyRiseChoices[0]),
                                            QString::number(parm.starBuyRiseChoices[1]),
                                            QString::number(parm.starBuyRiseChoices[2])});
    ui.comboBox_trade_kc_sellRise->addItems({QString::number(parm.starSellRiseChoices[0]),
                                             QString::number(parm.starSellRiseChoices[1]),
                                             QString::number(parm.starSellRiseChoices[2])});
    ui.comboBox_trade_kc_buyRise->setCurrentIndex(parm.starBuyRiseIndex);
    ui.comboBox_trade_kc_sellRise->setCurrentIndex(parm.starSellRiseIndex);

    const QSettings settings(QString::fromUtf8(ApplicationHomePath())
                                 + QStringLiteral("/config/system_settings.ini"),
                             QSettings::IniFormat);
    ui.spinBox_scale->setValue(settings.value(QStringLiteral("UI/scale")).toInt());
    const QString code = settings.value(QStringLiteral("UI/language")).toString();
    ui.comboBox_system_language->setCurrentIndex(code == QLatin1String("zh_TW")       ? 1
                                                     : code == QLatin1String("en_US") ? 2
                                                                                      : 0);
}

void FloorDialog::setValidators()
{
    Ui_FloorForm& ui = *m_form;
    auto* const quantity = new DigitsUpTo(10000000, this);
    auto* const minutes = new DigitsUpTo(1000, this);
    ui.lineEdit_system_lockTime->setValidator(minutes);
    ui.lineEdit_system_lockTime->installEventFilter(this);
    const auto guard = [this, quantity](QLineEdit* edit) {
        edit->setValidator(quantity);
        edit->installEventFilter(this);
    };
    guard(ui.lineEdit_trade_baseCount);
    guard(ui.lineEdit_trade_high);
    guard(ui.lineEdit_trade_low);
    guard(ui.lineEdit_trade_desc);
    guard(ui.lineEdit_trade_kc_baseCount);
    guard(ui.lineEdit_trade_kc_high);
    guard(ui.lineEdit_trade_kc_low);
    guard(ui.lineEdit_trade_kc_desc);
    guard(static_cast<QLineEdit*>(
        ui.spinBox_scale->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly)));
    for (int row = 0; row < 13; ++row) {
        guard(m_stock.editors[row]);
        guard(m_credit.editors[row]);
    }
    guard(m_global[0]);
    guard(m_global[1]);
    ui.comboBox_trade_kc_buyRise->installEventFilter(this);
    ui.comboBox_trade_kc_sellRise->installEventFilter(this);
}

void FloorDialog::connectAll()
{
    Ui_FloorForm& ui = *m_form;
    connect(m_bar, &FloorBar::clicked, ui.stackedWidget, &QStackedWidget::setCurrentIndex);
    connect(ui.widget_system, &FloorList::pressed, ui.stackedWidget_system,
            &QStackedWidget::setCurrentIndex);
    connect(ui.widget_trade, &FloorList::pressed, ui.stackedWidget_trade,
            &QStackedWidget::setCurrentIndex);
    connect(ui.widget_shortcut, &FloorList::pressed, ui.stackedWidget_shortcut,
            &QStackedWidget::setCurrentIndex);
    connect(ui.pushButton_cancle, &QPushButton::clicked, this, &QWidget::close);
    connect(ui.pushButton_confirm, &QPushButton::clicked, this, &FloorDialog::confirm);

    const auto nothing = [](int) {};
    connect(ui.pushButton_kc_buyRise, &QPushButton::clicked, this, nothing);
    connect(ui.pushButton_kc_sellRise, &QPushButton::clicked, this, nothing);
    const auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(ui.comboBox_trade_split, indexChanged, this, nothing);
    connect(ui.comboBox_trade_kc_split, indexChanged, this, nothing);
    connect(ui.checkBox_trade_fc, &QCheckBox::toggled, this, nothing);
    connect(ui.checkBox_trade_kc_fc, &QCheckBox::toggled, this, nothing);
    connect(ui.comboBox_system_language, indexChanged, this, nothing);
    connect(ui.comboBox_trade_kc_buyRise, &QComboBox::editTextChanged, this,
            [this](const QString& text) { m_buyRise = text; });
    connect(ui.comboBox_trade_kc_sellRise, &QComboBox::editTextChanged, this,
            [this](const QString& text) { m_sellRise = text; });
    connect(ui.spinBox_scale, &QSpinBox::textChanged, this,
            [this](const QString&) { m_scaleEdited = true; });
    for (int row = 0; row < 13; ++row) {
        connect(m_stock.editors[row], &FloorKeyEdit::captured, this,
                [this, row](const QString& text) { captureStockKey(row, text); });
        connect(m_credit.editors[row], &FloorKeyEdit::captured, this, [](const QString&) {});
    }
}

void FloorDialog::guideKeyboardAndWheel()
{
    const Ui_FloorForm& ui = *m_form;
    for (QTableWidget* const table :
         {ui.tableWidget_shortcut, ui.tableWidget_credit, ui.tableWidget_whole}) {
        table->setTabKeyNavigation(false);
        table->setFocusPolicy(Qt::ClickFocus);
    }
    setTabOrder(m_global[1], ui.pushButton_cancle);
    setTabOrder(ui.pushButton_cancle, ui.pushButton_confirm);
    QList<QKeySequence> keys = QKeySequence::keyBindings(QKeySequence::NextChild)
        + QKeySequence::keyBindings(QKeySequence::PreviousChild);
    keys << QKeySequence(int(Qt::CTRL) + Qt::Key_PageDown)
         << QKeySequence(int(Qt::CTRL) + Qt::Key_PageUp);
    for (const QKeySequence& key : qAsConst(keys)) {
        auto* const shortcut = new QShortcut(key, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, [] {});
    }
    for (QStackedWidget* const stack : {ui.stackedWidget, ui.stackedWidget_system,
                                        ui.stackedWidget_trade, ui.stackedWidget_shortcut}) {
        connect(stack, &QStackedWidget::currentChanged, stack, [stack] {
            if (qobject_cast<FloorKeyEdit*>(stack->window()->focusWidget()))
                stack->currentWidget()->setFocus();
        });
    }
    for (QPushButton* const button : {ui.pushButton_cancle, ui.pushButton_confirm,
                                      ui.pushButton_kc_buyRise, ui.pushButton_kc_sellRise}) {
        button->setAutoDefault(false);
        button->installEventFilter(this);
    }
    const auto guard = [this](QWidget* control) {
        control->setFocusPolicy(Qt::StrongFocus);
        control->installEventFilter(this);
    };
    const QList<QComboBox*> combos = findChildren<QComboBox*>();
    for (QComboBox* const combo : combos)
        guard(combo);
    guard(ui.spinBox_scale);
}

void FloorDialog::confirm()
{
    Ui_FloorForm& ui = *m_form;
    TradeParm& parm = *m_trade->GetTradeParm();
    parm.buyInputType = ui.comboBox_system_buy_type->currentIndex();
    parm.sellInputType = ui.comboBox_system_sell_type->currentIndex();
    const int page = ui.comboBox_system_defaultView->currentIndex();
    parm.defaultPage = page == 1 ? "ptmc" : page == 2 ? "zjgp" : "ptmr";
    parm.lockMinutes = ui.lineEdit_system_lockTime->text().toInt();
    parm.defaultBuyMode = ui.comboBox_system_buyType->currentIndex();
    parm.defaultSellMode = ui.comboBox_system_sellType->currentIndex();
    parm.quoteFollowsOrder = ui.comboBox_system_hqLink->currentIndex();
    parm.orderFollowsQuote = ui.comboBox_system_hqLink2->currentIndex();
    parm.fontSizeLevel = ui.comboBox_system_fontSize->currentIndex();
    parm.languageIndex = ui.comboBox_system_language->currentIndex();
    parm.defaultBuyPrice = ui.comboBox_trade_buyPrice->currentIndex();
    parm.defaultBuyQty = ui.comboBox_trade_buyCount->currentIndex();
    parm.defaultSellPrice = ui.comboBox_trade_sellPrice->currentIndex();
    parm.defaultSellQty = ui.comboBox_trade_sellCount->currentIndex();
    parm.afterOrderForm = ui.comboBox_trade_wt->currentIndex();
    parm.clickBookQty = ui.checkBox_trade_pk->isChecked();
    parm.inputBoxState = ui.comboBox_trade_lineEdit->currentIndex();
    parm.confirmCancel = ui.checkBox_trade_cancle->isChecked();
    parm.confirmOrder = ui.checkBox_trade_wt->isChecked();
    parm.orderSuccessDialog = ui.checkBox_trade_wtDlg->isChecked();
    parm.splitEnabled = ui.checkBox_trade_fc->isChecked();
    parm.splitBaseQty = ui.lineEdit_trade_baseCount->text().toInt();
    parm.splitStrategy = ui.comboBox_trade_split->currentIndex();
    parm.splitMaxQty = ui.lineEdit_trade_high->text().toInt();
    parm.splitMinQty = ui.lineEdit_trade_low->text().toInt();
    parm.splitStepQty = ui.lineEdit_trade_desc->text().toInt();
    parm.starSplitEnabled = ui.checkBox_trade_kc_fc->isChecked();
    parm.starSplitBaseQty = ui.lineEdit_trade_kc_baseCount->text().toInt();
    parm.starSplitStrategy = ui.comboBox_trade_kc_split->currentIndex();
    parm.starSplitMaxQty = ui.lineEdit_trade_kc_high->text().toInt();
    parm.starSplitMinQty = ui.lineEdit_trade_kc_low->text().toInt();
    parm.starSplitStepQty = ui.lineEdit_trade_kc_desc->text().toInt();
    parm.starBuyRiseIndex = ui.comboBox_trade_kc_buyRise->currentIndex();
    parm.starSellRiseIndex = ui.comboBox_trade_kc_sellRise->currentIndex();
    for (int item = 0; item < 3; ++item) {
        parm.starBuyRiseChoices[item] = ui.comboBox_trade_kc_buyRise->itemText(item).toInt();
        parm.starSellRiseChoices[item] = ui.comboBox_trade_kc_sellRise->itemText(item).toInt();
    }
    storeKeys(parm);
    m_trade->SaveTradeParm();
    close();
}

void FloorDialog::storeKeys(TradeParm& parm) const
{
    for (int row = 0; row < 13; ++row) {
        const QByteArray stock = m_stock.editors[row]->text().toLocal8Bit();
        const QByteArray credit = m_credit.editors[row]->text().toLocal8Bit();
        parm.stockShortcuts[entryOfRow[row]].assign(stock.constData(), std::size_t(stock.size()));
        parm.creditShortcuts[entryOfRow[row]].assign(credit.constData(),
                                                     std::size_t(credit.size()));
    }
}

void FloorDialog::captureStockKey(int row, const QString& text)
{
    m_stockTexts[row] = text;
    int duplicate = -1;
    for (int other = 0; other < 13 && duplicate < 0; ++other) {
        if (other != row && m_stockTexts.at(other) == text)
            duplicate = other;
    }
    const bool accepted = duplicate < 0;
    QLineEdit* const edit = m_stock.editors[row];
    const QString mark = accepted ? QStringLiteral("color:green") : QStringLiteral("color:red");
    if (edit->styleSheet() != mark)
        edit->setStyleSheet(mark);
    QTableWidget* const table = m_form->tableWidget_shortcut;
    QTableWidgetItem* const status = table->item(row, 2);
    status->setForeground(accepted ? Qt::green : Qt::red);
    status->setText(accepted ? translated("正常")
                             : translated("与%1重复").arg(table->item(duplicate, 0)->text()));
    if (accepted == m_stockAccepted)
        return;
    m_stockAccepted = accepted;
    for (int other = 0; other < 13; ++other) {
        if (other != row)
            m_stock.editors[other]->setEnabled(accepted);
    }
}

bool FloorDialog::eventFilter(QObject*, QEvent*) { return false; }
