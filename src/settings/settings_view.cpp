// SPDX-License-Identifier: MIT
#include "settings/settings_view.h"

#include "model/bundle_info.h"
#include "settings/applications_view.h"
#include "settings/close_key_window.h"
#include "settings/general_options_view.h"
#include "settings/repositories_view.h"
#include "settings/save_button.h"
#include "settings/settings_header.h"
#include "settings/settings_host.h"
#include "settings/symbol_icon.h"

#include <QTabWidget>
#include <QVBoxLayout>

namespace tarnwick {

namespace {

constexpr int side = 600;
constexpr int inset = 20;
constexpr int gapUnderHeader = 20;
constexpr int gapAboveButtons = 12;

} // namespace

SettingsView::SettingsView(RepoManager& mgr, PreferencesStore& store, SettingsHost& host,
                           const BundleInfo& bundle, const ApplicationFolder& system,
                           const ApplicationFolder& user, QWidget* parent)
    : QWidget(parent)
    , m_host(host)
    , m_vm(system, user)
{
    setFixedSize(side, side);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(inset, inset - SettingsHeader::overflow, inset, inset);
    column->setSpacing(0);
    column->addWidget(
        new SettingsHeader(bundle.requiredText(QStringLiteral("CFBundleVersion")), this));
    column->addSpacing(gapUnderHeader - SettingsHeader::overflow);

    const QIcon icon = symbolIcon(u"tray.and.arrow.down.fill");
    auto* const tabs = new QTabWidget(this);
    tabs->addTab(new GeneralOptionsView(store, host, tabs), icon, tr("Settings"));
    tabs->addTab(new RepositoriesView(mgr, host, tabs), icon, tr("Repositories"));
    tabs->addTab(new ApplicationsView(m_vm, store, system, user, tabs), icon, tr("Applications"));
    column->addWidget(tabs, 1);
    column->addSpacing(gapAboveButtons);

    auto* const save = new SaveButton(this);
    connect(save, &QPushButton::clicked, this, &SettingsView::saveAndClose);
    column->addWidget(save, 0, Qt::AlignTrailing);
}

void SettingsView::saveAndClose()
{
    m_host.rebuildMenu();
    closeKeyWindow();
}

} // namespace tarnwick
