#pragma once

#include <QMainWindow>
#include <QPointer>

class DataDirectory;
class LanguageMenu;
class QLabel;
class QMenu;
class QTableView;
class RecordFilter;
class RecordModel;
class SettingsModule;
class SettingsWindow;
class TradeCore;

/// The client's window: the record as it stands, and the way to the settings.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// The arguments must outlive the window.
    MainWindow(const SettingsModule& module, TradeCore& core, const DataDirectory& directory,
               QWidget* parent = nullptr);

    /// Opens the settings, or brings them to the front when they are open.
    void openSettings();
    /// Before all other windows, out of minimised, too.
    void comeToFront();
    SettingsWindow* settingsWindow() const;
    /// Where skins are listed; empty until somebody fills it.
    QMenu* skinMenu() const { return m_skinMenu; }
    RecordModel* model() const { return m_model; }

private:
    void buildActions();
    void buildView();
    void showCommit();
    void showUncommitted();
    void takeLanguage(int index);
    void showStoringFailure(const QString& reason);
    void showAbout();

    const SettingsModule& m_module;
    TradeCore& m_core;
    const DataDirectory& m_directory;
    RecordModel* m_model;
    RecordFilter* m_filter;
    QMenu* m_skinMenu = nullptr;
    LanguageMenu* m_languageMenu = nullptr;
    QTableView* m_table = nullptr;
    QLabel* m_summary = nullptr;
    QPointer<SettingsWindow> m_settings;
};
