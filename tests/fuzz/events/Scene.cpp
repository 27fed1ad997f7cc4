#include "fuzz/events/Scene.h"

#include "appearance/SkinSwitcher.h"
#include "client/MainWindow.h"
#include "client/SettingsModule.h"
#include "client/SettingsWindow.h"
#include "client/TradeCore.h"
#include "fuzz/FuzzInput.h"
#include "fuzz/RandomRecord.h"
#include "gallery/Gallery.h"
#include "support/Files.h"

#include <QApplication>
#include <QStackedWidget>
#include <QVBoxLayout>

Scene::Scene(QString moduleFile, const QString& home)
    : m_moduleFile(std::move(moduleFile))
    , m_directory(home)
    , m_skins(std::make_unique<SkinSwitcher>())
    , m_reserved(m_trade.reservedBytes())
{
    MUST(m_directory.makeConfigDirectory());
    load();
}

Scene::~Scene() { close(); }

void Scene::load()
{
    m_module = std::make_unique<SettingsModule>();
    const QString failure = m_module->load(m_moduleFile);
    if (!failure.isEmpty())
        FuzzInput::fail(qPrintable(failure), __FILE__, __LINE__);
}

void Scene::open(FuzzInput& input)
{
    if (m_unloaded)
        return;
    if (!m_dialog)
        openDialog(input);
    if (!m_client)
        openClient(input);
    if (!m_kit)
        m_kit = std::make_unique<KitWindow>();
    if (!m_gallery) {
        m_gallery = std::make_unique<Gallery>();
        m_skins->fill(m_gallery->skinMenu());
    }
    for (QWidget* const window : std::initializer_list<QWidget*>{m_dialog.get(), m_client.get(),
                                                                 m_kit.get(), m_gallery.get()})
        window->show();
}

void Scene::openDialog(FuzzInput& input)
{
    RandomRecord::fill(m_trade, input);
    if (input.flag())
        m_trade.parm().uiPageMode = 2;
    m_pageMode = m_trade.parm().uiPageMode;
    m_dialog.reset(m_module->createDialog(&m_trade));
    MUST(m_dialog);
    if (input.below(3))
        return;
    auto host = std::make_unique<QWidget>();
    auto* const layout = new QVBoxLayout(host.get());
    layout->addWidget(m_dialog.release());
    m_dialog = std::move(host);
}

void Scene::openClient(FuzzInput& input)
{
    m_core = std::make_unique<TradeCore>(m_directory);
    m_core->load();
    if (input.flag())
        m_core->GetTradeParm()->uiPageMode = 2;
    m_client = std::make_unique<MainWindow>(*m_module, *m_core, m_directory);
    m_skins->fill(m_client->skinMenu());
}

void Scene::close()
{
    m_dialog.reset();
    m_client.reset();
    m_core.reset();
    m_kit.reset();
    m_gallery.reset();
    // Menus and boxes that delete themselves, while what they belong to is still loaded.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Scene::replace(FuzzInput& input)
{
    if (m_unloaded)
        return;
    switch (input.below(6)) {
    case 0:
        m_dialog.reset();
        break;
    case 1:
        m_client.reset();
        m_core.reset();
        break;
    case 2:
        m_kit.reset();
        break;
    case 3:
        m_gallery.reset();
        break;
    default:
        if (m_client)
            m_client->openSettings();
        return;
    }
    open(input);
}

void Scene::reload(FuzzInput& input)
{
    if (m_unloaded)
        return;
    m_dialog.reset();
    m_client.reset();
    m_core.reset();
    if (input.flag())
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // Meanwhile nobody opens what would be the module's.
    m_module->m_library.unload();
    m_unloaded = true;
    QCoreApplication::processEvents();
    m_unloaded = false;
    load();
    open(input);
}

void Scene::turnPage(FuzzInput& input)
{
    QWidget* window = m_dialog.get();
    if (!input.below(3) && m_client && m_client->settingsWindow())
        window = m_client->settingsWindow();
    else if (!input.below(3))
        window = m_gallery.get();
    if (!window)
        return;
    // The page with the protection prices stands deepest, so its way is made more likely.
    auto* const splitting = window->findChild<QWidget*>(QStringLiteral("page_9"));
    if (splitting && !input.below(3)) {
        for (QWidget* page = splitting; page; page = page->parentWidget()) {
            if (auto* const stack = qobject_cast<QStackedWidget*>(page->parentWidget()))
                stack->setCurrentWidget(page);
        }
        window->activateWindow();
        return;
    }
    const auto stacks = window->findChildren<QStackedWidget*>();
    if (stacks.isEmpty())
        return;
    QStackedWidget* const stack = stacks.at(input.below(stacks.size()));
    stack->setCurrentIndex(input.below(stack->count()));
}

void Scene::disturbSettings(FuzzInput& input)
{
    constexpr const char* codes[] = {"zh_CN", "zh_TW", "en_US", "fr_FR", ""};
    writeFile(m_directory.settingsFile(),
              QByteArray("[UI]\nlanguage=") + codes[input.below(int(std::size(codes)))]
                  + "\nscale=" + QByteArray::number(input.integer()) + '\n');
}

QWidgetList Scene::shownWindows() const
{
    QWidgetList shown;
    for (QWidget* const window : std::initializer_list<QWidget*>{
             m_dialog.get(), m_client.get(), m_client ? m_client->settingsWindow() : nullptr,
             m_kit.get(), m_gallery.get()}) {
        if (window && window->isVisible())
            shown << window;
    }
    return shown;
}

void Scene::check() const
{
    MUST(m_trade.foreignCalls == 0);
    MUST(m_trade.reservedBytes() == m_reserved);
    MUST(!m_dialog || const_cast<FakeTrade&>(m_trade).parm().uiPageMode == m_pageMode);
}
