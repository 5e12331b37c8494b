// SPDX-License-Identifier: MIT
#include "shell/updates/updater.h"

#include "model/bundle_info.h"
#include "model/command_runner.h"
#include "shell/content_window.h"
#include "shell/updates/update_window.h"
#include "shell/updates/url_policy.h"

#include <QStandardPaths>

namespace tarnwick {

UpdateSettings updateSettings(const BundleInfo& info, const CommandRunner& runner)
{
    return {
        .feed = QUrl(info.text(QStringLiteral("SUFeedURL"))),
        .publicKey = info.text(QStringLiteral("SUPublicEDKey")).toLatin1(),
        .buildNumber = printableText(info.requiredText(QStringLiteral("CFBundleVersion"))),
        .downloadFolder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation),
        .showInFolder = [&runner](const QString& path) { revealInFinder(path, runner); },
    };
}

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
    return m_isStarted && !m_isChecking && isTrustedUrl(m_settings.feed);
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
