#include "client/MainWindow.h"

#include "appearance/SkinStyle.h"
#include "client/DataDirectory.h"
#include "client/LanguageMenu.h"
#include "client/RecordActions.h"
#include "client/RecordModel.h"
#include "client/RecordView.h"
#include "client/SettingsModule.h"
#include "client/SettingsWindow.h"
#include "client/TradeCore.h"
#include "client/WindowMemory.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QTime>
#include <QToolBar>

MainWindow::MainWindow(const SettingsModule& module, TradeCore& core,
                       const DataDirectory& directory, QWidget* parent)
    : QMainWindow(parent)
    , m_module(module)
    , m_core(core)
    , m_directory(directory)
    , m_view(new RecordView)
    , m_languageMenu(new LanguageMenu(directory, this))
    , m_recordActions(new RecordActions(core, this))
{
    setWindowTitle(tr("交易客户端"));
    model()->show(core.record());
    buildActions();
    buildView();
    connectRecord();

    const QSize usualFrame(4, 40);
    resize(usualSize().boundedTo(screen()->availableSize() - usualFrame));
}

void MainWindow::restorePlace() { WindowMemory::restore(m_directory, *this, *m_view); }

void MainWindow::keepPlace() const { WindowMemory::keep(m_directory, *this, *m_view); }

RecordModel* MainWindow::model() const { return m_view->model(); }

void MainWindow::buildActions()
{
    const auto picture = [this](SkinStyle::Picture which) {
        return style()->standardIcon(QStyle::StandardPixmap(which));
    };
    auto* const settings = new QAction(picture(SkinStyle::SettingsPicture), tr("设置"), this);
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
    m_recordActions->fill(file);
    file->addSeparator();
    file->addAction(quit);
    QMenu* const view = menuBar()->addMenu(tr("视图(&V)"));
    m_skinMenu = view->addMenu(tr("皮肤"));
    m_languageMenu->setObjectName(QStringLiteral("menu_language"));
    view->addMenu(m_languageMenu);
    QMenu* const help = menuBar()->addMenu(tr("帮助(&H)"));
    help->addAction(about);

    QToolBar* const bar = addToolBar(tr("工具栏"));
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    m_recordActions->undoAction()->setIcon(picture(SkinStyle::UndoPicture));
    bar->addActions({settings, m_recordActions->undoAction()});
}

void MainWindow::buildView()
{
    // At a large scale a small screen has less room than even the least of this.
    auto* const area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(m_view);
    setCentralWidget(area);

    auto* const place
        = new QLabel(tr("参数文件：%1").arg(QDir::toNativeSeparators(m_core.store().fileName())));
    place->setTextInteractionFlags(Qt::TextSelectableByMouse);
    place->setToolTip(place->text());
    place->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(place, 1);
}

void MainWindow::connectRecord()
{
    connect(&m_core, &TradeCore::committed, this, &MainWindow::showCommit);
    // Queued: the dialog that confirmed is closed before the box comes up.
    connect(&m_core, &TradeCore::storingFailed, this, &MainWindow::showStoringFailure,
            Qt::QueuedConnection);
    connect(m_languageMenu, &LanguageMenu::chosen, this, &MainWindow::takeLanguage);
    connect(m_recordActions, &RecordActions::imported, this,
            [this] { showChanges(tr("%1 已导入，修改了 %n 项", nullptr, takeChanges())); });
    connect(m_recordActions, &RecordActions::restored, this,
            [this] { showChanges(tr("%1 已恢复默认值，修改了 %n 项", nullptr, takeChanges())); });
    connect(m_recordActions, &RecordActions::undone, this,
            [this] { showChanges(tr("%1 已撤消，修改了 %n 项", nullptr, takeChanges())); });
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
        connect(m_settings, &SettingsWindow::closed, this, [this] {
            showUncommitted();
            setRecordIsEdited(false);
        });
        setRecordIsEdited(true);
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

// The dialog stores what it shows: nobody else changes that meanwhile.
void MainWindow::setRecordIsEdited(bool edited)
{
    m_languageMenu->setEnabled(!edited);
    m_recordActions->setRefused(edited);
}

// Marks what differs from what is shown. Returns how much.
int MainWindow::takeChanges()
{
    model()->showChanges(m_core.record());
    m_recordActions->noteChange();
    return model()->changeCount();
}

void MainWindow::showChanges(const QString& summary)
{
    m_view->setSummary(summary.arg(QTime::currentTime().toString(QStringLiteral("HH:mm:ss"))));
}

void MainWindow::showCommit()
{
    const int count = takeChanges();
    showChanges(count == 0 ? tr("%1 已确认，没有修改")
                           : tr("%1 已确认，修改了 %n 项", nullptr, count));
}

// Some edits reach the record without a confirm.
void MainWindow::showUncommitted()
{
    const int count = model()->addChanges(m_core.record());
    m_recordActions->noteChange();
    if (count > 0)
        showChanges(tr("%1 未经确认，修改了 %n 项", nullptr, count));
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
