#pragma once

#include "client/DataDirectory.h"
#include "fuzz/events/KitWindow.h"
#include "support/FakeTrade.h"

#include <memory>

class FuzzInput;
class Gallery;
class MainWindow;
class SettingsModule;
class SkinSwitcher;
class TradeCore;

/// The windows that the events go to: the module's dialog alone, the kit, the gallery, and the
/// client's window with the settings that it opens. The module is loaded as the client loads it.
class Scene {
public:
    Scene(QString moduleFile, const QString& home);
    ~Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    /// Makes and shows the windows that are missing.
    void open(FuzzInput& input);
    /// Destroys all windows.
    void close();
    /// Destroys one window and makes it anew, or opens the client's settings.
    void replace(FuzzInput& input);
    /// Destroys what is the module's, unloads it and loads it again.
    void reload(FuzzInput& input);
    /// Turns a page somewhere, among them those that nothing leads to.
    void turnPage(FuzzInput& input);
    /// Writes something into the settings file behind everybody's back.
    void disturbSettings(FuzzInput& input);
    KitWindow* kit() const { return m_kit.get(); }
    /// Those of the windows, the client's settings among them, that are on the screen.
    QWidgetList shownWindows() const;

    /// Fails if the module did to its host what it must not do.
    void check() const;

private:
    void load();
    void openDialog(FuzzInput& input);
    void openClient(FuzzInput& input);

    QString m_moduleFile;
    DataDirectory m_directory;
    std::unique_ptr<SettingsModule> m_module;
    std::unique_ptr<SkinSwitcher> m_skins;
    FakeTrade m_trade;
    QByteArray m_reserved;
    int m_pageMode = 0;
    bool m_unloaded = false;
    std::unique_ptr<QWidget> m_dialog; // or the host's window around it
    std::unique_ptr<TradeCore> m_core;
    std::unique_ptr<MainWindow> m_client;
    std::unique_ptr<KitWindow> m_kit;
    std::unique_ptr<Gallery> m_gallery;
};
