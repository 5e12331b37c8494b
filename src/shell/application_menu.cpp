// SPDX-License-Identifier: MIT
#include "shell/application_menu.h"

#include "model/bundle_info.h"
#include "model/diagnostics.h"
#include "model/distinguishing_folders.h"
#include "model/preference_keys.h"
#include "model/preferences_store.h"
#include "model/repo_manager.h"
#include "platform/platform.h"
#include "settings/links/link_settings_view.h"
#include "shell/content_window.h"
#include "shell/menu/hosted_row.h"
#include "shell/menu/hosting_view.h"
#include "shell/menu/row_column.h"
#include "shell/menu/status_menu.h"
#include "shell/top_row/refresh_view.h"
#include "shell/updates/updater.h"
#include "views/empty_state_view.h"
#include "views/panel/actions_view.h"
#include "views/panel/app_entry.h"
#include "views/repo_status_view.h"

#include <QTimer>

#include <chrono>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;

/// Long enough for the menu to be on the screen before git takes the processor.
constexpr auto refreshDelay = 200ms;

/// Names that differ where the directories do.
QStringList spokenNames(const RepoViewModels& records)
{
    QStringList dirs;
    for (const auto& record : records)
        dirs += record->dir();
    QStringList names = distinguishingFolders(dirs);
    for (std::size_t i = 0; i < records.size(); ++i) {
        QString& name = names[static_cast<qsizetype>(i)];
        name = name.isEmpty() ? records[i]->name()
                              : ApplicationMenu::tr("%1 in %2").arg(records[i]->name(), name);
    }
    return names;
}

} // namespace

ApplicationMenu::ApplicationMenu(Platform& platform, const BundleInfo& bundle,
                                 const CommandRunner& runner, PreferencesStore& store,
                                 SettingsHost& host)
    : m_platform(platform)
    , m_bundle(bundle)
    , m_runner(runner)
    , m_store(store)
    , m_host(host)
{}

std::unique_ptr<StatusMenu> ApplicationMenu::buildMenu(const RepoManager& repositories)
{
    writeFirstRunDefaults(m_store);
    m_overview.setModels(repositories.models());

    auto menu = std::make_unique<StatusMenu>();
    addRefreshRow(*menu);
    menu->addSeparator();
    if (models().empty())
        addEmptyStateItem(*menu);
    const QList<AppEntry> applications =
        loadAppEntries(m_store, *m_platform.systemApplications, *m_platform.userApplications);
    const QStringList names = spokenNames(models());
    for (std::size_t i = 0; i < models().size(); ++i)
        addRepositoryItem(models()[i], names[static_cast<qsizetype>(i)], applications, *menu);
    return menu;
}

HostedRow& ApplicationMenu::repositoryRow(const StatusMenu& menu, qsizetype index)
{
    return *menu.column().rows().at(1 + index); // the first holds the global controls
}

void ApplicationMenu::openLinkEditor(const std::shared_ptr<RepoViewModel>& record)
{
    showInWindow(std::make_unique<LinkSettingsView>(record, QString(), m_store, m_host),
                 tr("Add links"));
}

void ApplicationMenu::refreshOnOpen()
{
    QTimer::singleShot(refreshDelay, this, &ApplicationMenu::refreshIfEnabled);
}

void ApplicationMenu::refreshIfEnabled()
{
    if (m_store.boolForKey(preferences::refreshOnMenuOpen.key))
        refreshAll();
}

void ApplicationMenu::addd()
{
    writeDiagnosticLine(QStringLiteral("asd"));
}

void ApplicationMenu::releaseModels()
{
    m_overview.setModels({});
    m_refreshQueue.clear();
}

void ApplicationMenu::addRefreshRow(StatusMenu& menu) const
{
    auto controller =
        std::make_unique<StandardUpdaterController>(updateSettings(m_bundle, m_runner), true);
    auto* const controls = new RefreshView(std::move(controller), m_bundle);
    connect(controls, &RefreshView::refreshRequested, this, &ApplicationMenu::refreshAll);
    const auto showProgress = [this, controls] {
        controls->setProgress(m_overview.progressText());
    };
    connect(&m_overview, &RepoOverview::changed, controls, showProgress);
    showProgress();
    connect(controls, &RefreshView::settingsRequested, this, &ApplicationMenu::settingsRequested);
    auto* const row = new HostingView(controls);
    row->setText(controls->text());
    menu.addRow(row);
}

void ApplicationMenu::addRepositoryItem(const std::shared_ptr<RepoViewModel>& record,
                                        const QString& spokenName,
                                        const QList<AppEntry>& applications, StatusMenu& menu) const
{
    auto* const status = new RepoStatusView(record, m_store);
    status->setSpokenName(spokenName);
    auto* const row = new HostingView(status);
    row->setText(status->text());
    connect(status, &RepoStatusView::textChanged, row,
            [status, row] { row->setText(status->text()); });
    row->setDescription([status] { return status->description(); });
    connect(record.get(), &RepoViewModel::statusStringChanged, row,
            &HostingView::descriptionChanged);
    HostedRow* const hosted = menu.addRow(row);
    hosted->setName(record->name());
    hosted->setSubmenu([this, record, spokenName, applications, &menu] {
        return newPanel(record, spokenName, applications, menu);
    });
    menu.addSeparator();
}

StatusMenu* ApplicationMenu::newPanel(const std::shared_ptr<RepoViewModel>& record,
                                      const QString& spokenName,
                                      const QList<AppEntry>& applications, StatusMenu& menu) const
{
    auto* const actions = new ActionsView(record, applications, m_runner);
    auto* const row = new HostingView(actions);
    row->setText(tr("Actions for %1").arg(spokenName));
    auto* const panel = new StatusMenu(&menu);
    HostedRow* const hosted = panel->addRow(row);
    connect(row, &HostingView::aboutToBeShown, actions, [actions, hosted] {
        actions->render();
        hosted->announceSize();
    });
    return panel;
}

void ApplicationMenu::addEmptyStateItem(StatusMenu& menu) const
{
    auto* const text = new EmptyStateView;
    auto* const row = new HostingView(text);
    row->setText(text->text());
    menu.addRow(row);
}

} // namespace tarnwick
