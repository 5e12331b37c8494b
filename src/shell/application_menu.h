// SPDX-License-Identifier: MIT
#pragma once

#include "model/refresh_queue.h"
#include "model/repo_overview.h"

#include <QList>
#include <QObject>

#include <memory>

namespace tarnwick {

class BundleInfo;
class HostedRow;
class PreferencesStore;
class RepoManager;
class SettingsHost;
class StatusMenu;
struct AppEntry;
struct Platform;

/// Makes the status menu. A menu is built as a whole and never edited: when something structural
/// changes, a new one replaces it. Main thread only.
class ApplicationMenu : public QObject, public RepoViewModelDelegate
{
    Q_OBJECT

public:
    /// What it is given outlives it.
    ApplicationMenu(Platform& platform, const BundleInfo& bundle, const CommandRunner& runner,
                    PreferencesStore& store, SettingsHost& host);

    /// The records of the menu built last; a refresh works on these, not on the live list.
    [[nodiscard]] const RepoViewModels& models() const { return m_overview.models(); }
    [[nodiscard]] const RepoOverview& overview() const { return m_overview; }

    /// Writes the first-run defaults into a fresh store, takes the list's records as they are now
    /// and makes a row for each.
    [[nodiscard]] std::unique_ptr<StatusMenu> buildMenu(const RepoManager& repositories);

    /// The row of the repository at this index of the records that the menu was built of.
    [[nodiscard]] static HostedRow& repositoryRow(const StatusMenu& menu, qsizetype index);

    void openLinkEditor(const std::shared_ptr<RepoViewModel>& record) override;

    /// Called when the menu is about to open: refreshes a moment later if the user wants that, and
    /// does not keep the menu waiting.
    void refreshOnOpen();
    void refreshIfEnabled();
    /// Returns at once; see refresh_queue.h.
    void refreshAll() { m_refreshQueue.add(models()); }

    /// Writes "asd" to standard output: tells whether an action reaches this object.
    void addd();

    /// Lets go of the records, which hold this object.
    void releaseModels();

Q_SIGNALS:
    void settingsRequested();

private:
    void addRefreshRow(StatusMenu& menu) const;
    void addRepositoryItem(const std::shared_ptr<RepoViewModel>& record, const QString& spokenName,
                           const QList<AppEntry>& applications, StatusMenu& menu) const;
    [[nodiscard]] StatusMenu* newPanel(const std::shared_ptr<RepoViewModel>& record,
                                       const QString& spokenName,
                                       const QList<AppEntry>& applications, StatusMenu& menu) const;
    void addEmptyStateItem(StatusMenu& menu) const;

    Platform& m_platform;
    const BundleInfo& m_bundle;
    const CommandRunner& m_runner;
    PreferencesStore& m_store;
    SettingsHost& m_host;
    RepoOverview m_overview;
    RefreshQueue m_refreshQueue;
};

} // namespace tarnwick
