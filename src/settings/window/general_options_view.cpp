// SPDX-License-Identifier: MIT
#include "settings/window/general_options_view.h"

#include "settings/settings_host.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace tarnwick {

namespace {

constexpr int margin = 20;
constexpr int spacing = 10;

} // namespace

GeneralOptionsView::GeneralOptionsView(PreferencesStore& store, SettingsHost& host, QWidget* parent)
    : QWidget(parent)
    , m_launchOnStartup(store, preferences::launchOnStartup)
    , m_refreshOnMenuOpen(store, preferences::refreshOnMenuOpen)
    , m_showCleanRepoStatus(store, preferences::showCleanRepoStatus)
    , m_onlyIcons(store, preferences::onlyIcons)
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    auto* const launchOnStartup = newCheckBox(tr("Launch on startup"), m_launchOnStartup);
    connect(launchOnStartup, &QCheckBox::toggled, this,
            [&host](bool isChecked) { host.setLaunchAtLogin(isChecked); });
    column->addWidget(launchOnStartup);
    column->addWidget(newCheckBox(tr("Use only icons in repo statuses"), m_onlyIcons));
    column->addWidget(
        newCheckBox(tr("Refresh repos automatically when menu is opened"), m_refreshOnMenuOpen));
    column->addWidget(newCheckBox(tr("Show clean repo status"), m_showCleanRepoStatus));
}

QCheckBox* GeneralOptionsView::newCheckBox(const QString& text, BoundSetting& setting)
{
    auto* const box = new QCheckBox(text, this);
    box->setChecked(setting.value());
    connect(&setting, &BoundSetting::valueChanged, box, &QCheckBox::setChecked);
    connect(box, &QCheckBox::toggled, &setting, [&setting](bool isChecked) {
        // The store itself may have changed the box.
        if (isChecked != setting.value())
            setting.setValue(isChecked);
    });
    return box;
}

} // namespace tarnwick
