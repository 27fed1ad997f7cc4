#pragma once

#include <QMainWindow>
#include <QPointer>

class DataDirectory;
class LanguageMenu;
class QMenu;
class RecordActions;
class RecordModel;
class RecordView;
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

    /// Where there is room for it.
    static QSize usualSize() { return {980, 680}; }

    /// As it was left when it was last kept, for the next start.
    void restorePlace();
    void keepPlace() const;

    /// Opens the settings, or brings them to the front when they are open.
    void openSettings();
    /// Before all other windows, out of minimised, too.
    void comeToFront();
    SettingsWindow* settingsWindow() const;
    /// Where skins are listed; empty until somebody fills it.
    QMenu* skinMenu() const { return m_skinMenu; }
    RecordModel* model() const;

private:
    void buildActions();
    void buildView();
    void connectRecord();
    void setRecordIsEdited(bool edited);
    int takeChanges();
    void showChanges(const QString& summary);
    void showCommit();
    void showUncommitted();
    void takeLanguage(int index);
    void showStoringFailure(const QString& reason);
    void showAbout();

    const SettingsModule& m_module;
    TradeCore& m_core;
    const DataDirectory& m_directory;
    RecordView* m_view;
    LanguageMenu* m_languageMenu;
    RecordActions* m_recordActions;
    QMenu* m_skinMenu = nullptr;
    QPointer<SettingsWindow> m_settings;
};
