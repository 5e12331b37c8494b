// SPDX-License-Identifier: MIT
#pragma once

#include "model/background_queue.h"
#include "model/bundle_info.h"
#include "model/command_runner.h"
#include "model/preferences_store.h"
#include "model/repo_manager.h"
#include "platform/platform.h"
#include "platform/terminal_launcher.h"
#include "settings/settings_host.h"
#include "shell/application_menu.h"

#include <QTemporaryDir>

namespace tarnwick::bench {

/// The program's own model and menu, over repositories that are chosen for each figure. Settings
/// are never opened.
class Bench
{
public:
    /// `repositories` is what make_repositories.sh has filled.
    explicit Bench(QString repositories);

    [[nodiscard]] QString path(const QString& name) const { return m_repositories + u'/' + name; }
    /// The first repositories of the list.
    [[nodiscard]] QStringList dirs(qsizetype count) const;

    /// Loads the list anew; nothing has been published yet when it returns.
    [[nodiscard]] std::unique_ptr<RepoManager> load(const QStringList& dirs);
    /// The same, and waits until everything is published.
    [[nodiscard]] std::unique_ptr<RepoManager> loaded(const QStringList& dirs);

    [[nodiscard]] ApplicationMenu& menu() { return *m_menu; }

private:
    struct NoSettings : SettingsHost
    {
        void rebuildMenu() override {}
        void setLaunchAtLogin(bool /*enabled*/) override {}
        std::shared_ptr<RepoViewModelDelegate> newRecordDelegate() override { return {}; }
    };

    const QString m_repositories;
    QTemporaryDir m_folder;
    PreferencesStore m_store{m_folder.filePath(QStringLiteral("preferences.json"))};
    Platform m_platform = systemPlatform();
    BundleInfo m_bundle{m_platform.bundleInfo};
    CommandRunner m_runner{{.open = m_platform.openProgram}};
    BackgroundQueue m_queue;
    NoSettings m_settings;
    std::shared_ptr<ApplicationMenu> m_menu;
};

// Each measures, and reports, the figures of its file.
void measureGit(Bench& bench, bool quick);
void measureMenus(Bench& bench);
void measureProcesses(const QStringList& dirs, bool quick);
void comparePeers(Bench& bench);
void measureUnranked(Bench& bench);

} // namespace tarnwick::bench
