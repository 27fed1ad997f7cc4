#include "client/MainWindow.h"

#include "client/DataDirectory.h"
#include "client/LanguageMenu.h"
#include "client/RecordFilter.h"
#include "client/RecordModel.h"
#include "client/SettingsModule.h"
#include "client/SettingsWindow.h"
#include "client/TradeCore.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QStyle>
#include <QTableView>
#include <QTime>
#include <QToolBar>
#include <QVBoxLayout>

MainWindow::MainWindow(const SettingsModule& module, TradeCore& core,
                       const DataDirectory& directory, QWidget* parent)
    : QMainWindow(parent)
    , m_module(module)
    , m_core(core)
    , m_directory(directory)
    , m_model(new RecordModel(this))
    , m_filter(new RecordFilter(this))
{
    setWindowTitle(tr("交易客户端"));
    m_model->show(core.record());
    m_filter->setSourceModel(m_model);
    m_filter->setFilterKeyColumn(-1);
    m_filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    buildActions();
    buildView();
    connect(&core, &TradeCore::committed, this, &MainWindow::showCommit);
    // Queued: the dialog that confirmed is closed before the box comes up.
    connect(&core, &TradeCore::storingFailed, this, &MainWindow::showStoringFailure,
            Qt::QueuedConnection);

    const QSize wanted(980, 680);
    const QSize usualFrame(4, 40);
    resize(wanted.boundedTo(screen()->availableSize() - usualFrame));
}

void MainWindow::buildActions()
{
    auto* const settings
        = new QAction(style()->standardIcon(QStyle::SP_FileDialogDetailedView), tr("设置"), this);
    settings->setObjectName(QStringLiteral("action_settings"));
    settings->setShortcut(QKeySequence(QStringLiteral("Ctrl+,")));
    settings->setToolTip(
        tr("打开交易设置（%1）").arg(settings->shortcut().toString(QKeySequence::NativeText)));
    connect(settings, &QAction::triggered, this, &MainWindow::openSettings);
    auto* const quit = new QAction(tr("退出(&X)"), this);
    quit->setShortcut(QKeySequence::Quit);
    quit->setMenuRole(QAction::QuitRole);
    connect(quit, &QAction::triggered, this, &QWidget::close);
    auto* const about = new QAction(tr("关于(&A)"), this);
    about->setMenuRole(QAction::AboutRole);
    connect(about, &QAction::triggered, this, &MainWindow::showAbout);

    QMenu* const file = menuBar()->addMenu(tr("系统(&S)"));
    file->addAction(settings);
    file->addSeparator();
    file->addAction(quit);
    QMenu* const view = menuBar()->addMenu(tr("视图(&V)"));
    m_skinMenu = view->addMenu(tr("皮肤"));
    m_languageMenu = new LanguageMenu(m_directory, this);
    m_languageMenu->setObjectName(QStringLiteral("menu_language"));
    view->addMenu(m_languageMenu);
    connect(m_languageMenu, &LanguageMenu::chosen, this, &MainWindow::takeLanguage);
    QMenu* const help = menuBar()->addMenu(tr("帮助(&H)"));
    help->addAction(about);

    QToolBar* const bar = addToolBar(tr("工具栏"));
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->addAction(settings);
}

void MainWindow::buildView()
{
    auto* const search = new QLineEdit;
    search->setPlaceholderText(tr("搜索参数、字段或数值"));
    search->setClearButtonEnabled(true);
    connect(search, &QLineEdit::textChanged, m_filter,
            &QSortFilterProxyModel::setFilterFixedString);
    auto* const changedOnly = new QCheckBox(tr("仅显示最近修改"));
    connect(changedOnly, &QCheckBox::toggled, m_filter, &RecordFilter::setChangedOnly);

    auto* const heading = new QLabel(tr("交易参数"));
    QFont headingFont = heading->font();
    headingFont.setPointSizeF(headingFont.pointSizeF() * 1.5);
    headingFont.setBold(true);
    heading->setFont(headingFont);
    m_summary = new QLabel(tr("尚未修改"));
    m_summary->setObjectName(QStringLiteral("label_summary"));

    m_table = new QTableView;
    m_table->setModel(m_filter);
    m_table->setObjectName(QStringLiteral("tableView_record"));
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 10);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->horizontalHeader()->setStretchLastSection(true);
    const int em = m_table->fontMetrics().horizontalAdvance(QLatin1Char('M'));
    constexpr int columnWidths[] = {20, 15, 10, 12};
    for (int column = 0; column < RecordModel::ChangeColumn; ++column)
        m_table->setColumnWidth(column, columnWidths[column] * em);

    auto* const top = new QHBoxLayout;
    top->addWidget(heading);
    top->addSpacing(12);
    top->addWidget(m_summary, 1);
    top->addWidget(changedOnly);
    top->addWidget(search);
    search->setMinimumWidth(16 * em);
    auto* const central = new QWidget;
    auto* const layout = new QVBoxLayout(central);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(10);
    layout->addLayout(top);
    layout->addWidget(m_table);
    // At a large scale a small screen has less room than even the least of this.
    auto* const area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(central);
    setCentralWidget(area);

    auto* const place
        = new QLabel(tr("参数文件：%1").arg(QDir::toNativeSeparators(m_core.store().fileName())));
    place->setTextInteractionFlags(Qt::TextSelectableByMouse);
    place->setToolTip(place->text());
    place->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(place, 1);
}

SettingsWindow* MainWindow::settingsWindow() const { return m_settings; }

void MainWindow::openSettings()
{
    if (!m_settings) {
        QWidget* const dialog = m_module.createDialog(&m_core);
        if (!dialog) {
            QMessageBox::critical(this, windowTitle(), tr("设置模块无法创建设置窗口。"));
            return;
        }
        m_settings = new SettingsWindow(dialog, this);
        connect(m_settings, &SettingsWindow::closed, this, &MainWindow::showUncommitted);
        // The dialog has a choice of its own, which it would store with the rest.
        m_languageMenu->setEnabled(false);
        connect(m_settings, &SettingsWindow::closed, m_languageMenu,
                [this] { m_languageMenu->setEnabled(true); });
    }
    m_settings->show();
    m_settings->raise();
    m_settings->activateWindow();
}

void MainWindow::comeToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    // What waits for an answer stands before the window.
    if (QWidget* const waiting = QApplication::activeModalWidget()) {
        waiting->raise();
        waiting->activateWindow();
    }
}

void MainWindow::showCommit()
{
    m_model->showChanges(m_core.record());
    const QString time = QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
    m_summary->setText(
        m_model->changeCount() == 0
            ? tr("%1 已确认，没有修改").arg(time)
            : tr("%1 已确认，修改了 %n 项", nullptr, m_model->changeCount()).arg(time));
}

// Some edits reach the record without a confirm.
void MainWindow::showUncommitted()
{
    const int count = m_model->addChanges(m_core.record());
    if (count == 0)
        return;
    const QString time = QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
    m_summary->setText(tr("%1 未经确认，修改了 %n 项", nullptr, count).arg(time));
}

// The record knows the language too.
void MainWindow::takeLanguage(int index)
{
    m_core.GetTradeParm()->languageIndex = index;
    showUncommitted();
}

void MainWindow::showStoringFailure(const QString& reason)
{
    QMessageBox::critical(
        this, windowTitle(),
        tr("新的交易参数已生效，但未能保存：\n%1\n\n原文件未改动，退出客户端时将再次尝试保存。")
            .arg(reason));
}

void MainWindow::showAbout()
{
    QMessageBox::about(
        this, tr("关于"),
        tr("交易客户端 %1\n\n设置模块：%2\n数据目录：%3")
            .arg(QCoreApplication::applicationVersion(), m_module.fileName(), m_directory.home()));
}
