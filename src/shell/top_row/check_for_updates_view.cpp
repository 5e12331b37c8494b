// SPDX-License-Identifier: MIT
#include "shell/top_row/check_for_updates_view.h"

#include "shell/updates/updater.h"
#include "views/symbols.h"

namespace tarnwick {

CheckForUpdatesViewModel::CheckForUpdatesViewModel(Updater& updater, QObject* parent)
    : QObject(parent)
{
    connect(&updater, &Updater::canCheckForUpdatesChanged, this,
            &CheckForUpdatesViewModel::setCanCheckForUpdates);
    setCanCheckForUpdates(updater.canCheckForUpdates());
}

void CheckForUpdatesViewModel::setCanCheckForUpdates(bool canCheckForUpdates)
{
    m_canCheckForUpdates = canCheckForUpdates;
    Q_EMIT canCheckForUpdatesChanged(canCheckForUpdates);
}

CheckForUpdatesView::CheckForUpdatesView(Updater& updater, QWidget* parent)
    : GlyphButton(glyph::update, tr("Check for updates"), parent)
    , m_checkForUpdatesViewModel(updater)
{
    setEnabled(m_checkForUpdatesViewModel.canCheckForUpdates());
    connect(&m_checkForUpdatesViewModel, &CheckForUpdatesViewModel::canCheckForUpdatesChanged, this,
            &QWidget::setEnabled);
    connect(this, &QAbstractButton::clicked, &updater, &Updater::checkForUpdates);
}

} // namespace tarnwick
