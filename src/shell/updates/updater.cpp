// SPDX-License-Identifier: MIT
#include "shell/updates/updater.h"

#include "shell/content_window.h"
#include "shell/updates/trusted_address.h"
#include "shell/updates/update_window.h"

namespace tarnwick {

Updater::Updater(UpdateSettings settings)
    : m_settings(std::move(settings))
{}

void Updater::start()
{
    if (m_isStarted)
        return;
    m_isStarted = true;
    if (canCheckForUpdates())
        Q_EMIT canCheckForUpdatesChanged(true);
}

bool Updater::canCheckForUpdates() const
{
    return m_isStarted && !m_isChecking && isTrustedAddress(m_settings.feed);
}

void Updater::checkForUpdates()
{
    if (!canCheckForUpdates())
        return;
    setChecking(true);
    auto window = std::make_unique<UpdateWindow>(m_settings);
    connect(window.get(), &QObject::destroyed, this, [this] { setChecking(false); });
    showWindow(std::move(window), UpdateWindow::tr("Software Update"));
}

void Updater::setChecking(bool isChecking)
{
    m_isChecking = isChecking;
    Q_EMIT canCheckForUpdatesChanged(!isChecking);
}

} // namespace tarnwick
