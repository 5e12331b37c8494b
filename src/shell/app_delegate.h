// SPDX-License-Identifier: MIT
#pragma once

#include "model/repo_view_model.h"
#include "settings/settings_host.h"
#include "shell/launch_at_login.h"

#include <QObject>

#include <memory>

namespace tarnwick {

class ApplicationMenu;
class BundleInfo;
class PreferencesStore;
class RepoManager;
class StatusItem;
class StatusMenu;
struct Platform;

/// Owns what the program shows: the status item, the current menu and the repository list.
/// One for the whole process, on the main thread.
class AppDelegate : public QObject, public SettingsHost
{
    Q_OBJECT

public:
    /// What it is given outlives it.
    AppDelegate(Platform& platform, const BundleInfo& bundle, PreferencesStore& store,
                RepoServices services);
    ~AppDelegate() override;

    /// The one delegate, from `applicationDidFinishLaunching()` on; nothing before.
    [[nodiscard]] static AppDelegate* shared();

    void applicationDidFinishLaunching();
    /// The status menu is about to open.
    void menuWillOpen();

    /// Shows the repositories, in the menu at the status item or, on a desktop without a place for
    /// one, in a window; waits until it is known which.
    void activate();
    /// Does what an action of the desktop entry stands for; nothing for one of another name.
    void performAction(const QString& name);

    /// Opens another window of settings.
    void openSettings();

    /// Made on first use.
    [[nodiscard]] StatusItem& statusBarItem();
    [[nodiscard]] ApplicationMenu& appMenu() { return *m_appMenu; }
    /// Made, and so loaded, on first use. Stops the process before `shared()` is set.
    [[nodiscard]] RepoManager& repoManager();

    /// Builds a new menu and puts it in place of the current one, which closes.
    void rebuildMenu() override;
    void setLaunchAtLogin(bool enabled) override;
    [[nodiscard]] std::shared_ptr<RepoViewModelDelegate> newRecordDelegate() override;

private:
    void makeStatusItem();
    void openMenu(const QRect& anchor);
    void openPanel(qsizetype repository);

    Platform& m_platform;
    const BundleInfo& m_bundle;
    PreferencesStore& m_store;
    const RepoServices m_services;
    LaunchAtLogin m_launchAtLogin;

    const std::shared_ptr<ApplicationMenu> m_appMenu;
    std::unique_ptr<RepoManager> m_repoManager;
    std::unique_ptr<StatusItem> m_statusBarItem;
    std::unique_ptr<StatusMenu> m_menu;
    /// The user has asked for the repositories before it was known where to show them.
    bool m_isAwaited = false;
};

} // namespace tarnwick
