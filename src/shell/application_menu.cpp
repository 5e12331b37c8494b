// SPDX-License-Identifier: MIT
#include "shell/application_menu.h"

#include "model/diagnostics.h"
#include "model/preference_keys.h"
#include "model/preferences_store.h"
#include "model/repo_manager.h"
#include "platform/platform.h"
#include "settings/link_settings_view.h"
#include "shell/content_window.h"
#include "shell/menu/hosting_view.h"
#include "shell/menu/status_menu.h"
#include "views/empty_state_view.h"
#include "views/repo_status_view.h"

#include <QTimer>

#include <chrono>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;

/// Long enough for the menu to be on the screen before git takes the processor.
constexpr auto refreshDelay = 200ms;

} // namespace

ApplicationMenu::ApplicationMenu(Platform& platform, PreferencesStore& store, SettingsHost& host)
    : m_platform(platform)
    , m_store(store)
    , m_host(host)
{}

std::unique_ptr<StatusMenu> ApplicationMenu::buildMenu(const RepoManager& repositories)
{
    writeFirstRunDefaults(m_store);
    m_models = repositories.models();

    auto menu = std::make_unique<StatusMenu>();
    // The row of global controls will stand here, with a separator below it.
    if (m_models.empty())
        addEmptyStateItem(*menu);
    for (const auto& record : m_models)
        addRepositoryItem(record, *menu);
    return menu;
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
        refreshAll(m_models);
}

void ApplicationMenu::addd()
{
    writeDiagnosticLine(QStringLiteral("asd"));
}

void ApplicationMenu::addRepositoryItem(const std::shared_ptr<RepoViewModel>& record,
                                        StatusMenu& menu) const
{
    auto* const status = new RepoStatusView(record, m_store);
    auto* const row = new HostingView(status);
    row->setText(status->text());
    connect(status, &RepoStatusView::textChanged, row,
            [status, row] { row->setText(status->text()); });
    // The repository's panel will be this action's menu.
    menu.addHostedRow(row);
    menu.addSeparator();
}

void ApplicationMenu::addEmptyStateItem(StatusMenu& menu) const
{
    auto* const text = new EmptyStateView;
    auto* const row = new HostingView(text);
    row->setText(text->text());
    menu.addHostedRow(row);
}

} // namespace tarnwick
