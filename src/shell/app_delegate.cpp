// SPDX-License-Identifier: MIT
#include "shell/app_delegate.h"

#include "model/repo_manager.h"
#include "platform/active_window.h"
#include "platform/launcher_helper.h"
#include "platform/platform.h"
#include "platform/tray_host.h"
#include "settings/window/settings_view.h"
#include "shell/application_menu.h"
#include "shell/content_window.h"
#include "shell/menu/status_menu.h"
#include "shell/status_item.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>

namespace tarnwick {

using namespace std::chrono_literals;

namespace {

/// What a panel takes to show the item in its place.
constexpr auto placingTime = 500ms;

AppDelegate* sharedDelegate = nullptr;

} // namespace

AppDelegate::AppDelegate(Platform& platform, const BundleInfo& bundle, PreferencesStore& store,
                         RepoServices services)
    : m_platform(platform)
    , m_bundle(bundle)
    , m_store(store)
    , m_services(services)
    , m_launchAtLogin(*platform.loginServices, store, bundle, launcher::identifier)
    , m_appMenu(std::make_shared<ApplicationMenu>(platform, bundle, services.runner, store, *this))
{
    connect(m_appMenu.get(), &ApplicationMenu::settingsRequested, this, &AppDelegate::openSettings);
    // An open menu holds the keyboard: what is meant for a terminal that has come up would go to
    // it.
    connect(platform.activeWindow.get(), &ActiveWindow::changed, this, [this] {
        if (m_menu && !m_menu->isFreeStanding())
            m_menu->dismiss();
    });
}

AppDelegate::~AppDelegate()
{
    m_appMenu->releaseModels();
    sharedDelegate = nullptr;
}

AppDelegate* AppDelegate::shared()
{
    return sharedDelegate;
}

void AppDelegate::applicationDidFinishLaunching()
{
    sharedDelegate = this;
    makeStatusItem();
    rebuildMenu();
    m_launchAtLogin.startLaunchAtLogin();
}

void AppDelegate::menuWillOpen()
{
    m_appMenu->refreshOnOpen();
}

void AppDelegate::activate()
{
    m_isAwaited = m_platform.trayHost->isUndecided();
    if (m_isAwaited)
        return;
    if (!m_platform.trayHost->available())
        m_menu->openFreeStanding();
    else if (!m_menu->isVisible())
        openMenu(m_statusBarItem->anchor());
}

void AppDelegate::performAction(const QString& name)
{
    if (name == u"refresh")
        m_appMenu->refreshAll();
    else if (name == u"fetch-all")
        fetchAll(m_appMenu->models(), m_services.terminal);
    else if (name == u"settings")
        openSettings();
    else if (name == u"quit")
        QCoreApplication::quit();
}

void AppDelegate::openSettings()
{
    showInWindow(std::make_unique<SettingsView>(repoManager(), m_store, *this, m_bundle,
                                                *m_platform.systemApplications,
                                                *m_platform.userApplications),
                 tr("Settings"));
}

StatusItem& AppDelegate::statusBarItem()
{
    if (!m_statusBarItem)
        makeStatusItem();
    return *m_statusBarItem;
}

RepoManager& AppDelegate::repoManager()
{
    if (!m_repoManager) {
        m_repoManager = std::make_unique<RepoManager>(
            m_store, m_services, []() -> std::shared_ptr<RepoViewModelDelegate> {
                return shared() ? shared()->m_appMenu : nullptr;
            });
    }
    return *m_repoManager;
}

void AppDelegate::rebuildMenu()
{
    auto menu = m_appMenu->buildMenu(repoManager());
    connect(menu.get(), &StatusMenu::aboutToShow, this, &AppDelegate::menuWillOpen);
    std::swap(m_menu, menu);
    if (menu) {
        if (menu->isVisible() && menu->isFreeStanding())
            m_menu->openFreeStanding(menu->pos());
        menu->close();
        // The request may come from within the old menu.
        menu.release()->deleteLater();
    }
}

void AppDelegate::setLaunchAtLogin(bool enabled)
{
    m_launchAtLogin.setLaunchAtLogin(enabled);
}

std::shared_ptr<RepoViewModelDelegate> AppDelegate::newRecordDelegate()
{
    return std::make_shared<ApplicationMenu>(m_platform, m_bundle, m_services.runner, m_store,
                                             *this);
}

void AppDelegate::makeStatusItem()
{
    m_statusBarItem = std::make_unique<StatusItem>(*m_platform.trayHost, m_appMenu->overview());
    connect(m_statusBarItem.get(), &StatusItem::triggered, this, &AppDelegate::openMenu);
    const auto answer = [this] {
        if (m_isAwaited)
            activate();
    };
    connect(m_platform.trayHost.get(), &TrayHost::missed, this, answer);
    connect(m_platform.trayHost.get(), &TrayHost::appeared, this,
            [this, answer] { QTimer::singleShot(placingTime, this, answer); });
    connect(m_statusBarItem.get(), &StatusItem::panelRequested, this, &AppDelegate::openPanel);
    connect(m_statusBarItem.get(), &StatusItem::refreshAllRequested, m_appMenu.get(),
            &ApplicationMenu::refreshAll);
    connect(m_statusBarItem.get(), &StatusItem::fetchAllRequested, this,
            [this] { fetchAll(m_appMenu->models(), m_services.terminal); });
    connect(m_statusBarItem.get(), &StatusItem::settingsRequested, this,
            &AppDelegate::openSettings);
}

void AppDelegate::openMenu(const QRect& anchor)
{
    m_menu->popUpBeside(anchor, m_platform.trayHost->panelRects());
}

void AppDelegate::openPanel(qsizetype repository)
{
    if (!m_menu->isVisible())
        openMenu(m_statusBarItem->anchor());
    m_menu->showSubmenuOf(ApplicationMenu::repositoryRow(*m_menu, repository));
}

} // namespace tarnwick
