// SPDX-License-Identifier: MIT
#include "platform/freedesktop/application_folder.h"
#include "platform/freedesktop/palette_follower.h"
#include "platform/freedesktop/terminal_launcher.h"
#include "platform/freedesktop/tray_host.h"
#include "platform/platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>

namespace tarnwick {

namespace {

/// A path below the prefix that the program is installed under.
QString installed(const QString& path)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../") + path);
}

QJsonObject readBundleInfo()
{
    QFile file(installed(QStringLiteral("share/tarnwick/Info.json")));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

} // namespace

Platform systemPlatform()
{
    Platform platform;
    platform.trayHost = std::make_unique<FreedesktopTrayHost>();
    platform.paletteFollower = std::make_unique<PaletteFollower>();
    platform.terminal = std::make_unique<FreedesktopTerminalLauncher>();
    platform.systemApplications =
        std::make_unique<FreedesktopApplicationFolder>(DesktopEntryPlace::System);
    platform.userApplications =
        std::make_unique<FreedesktopApplicationFolder>(DesktopEntryPlace::User);
    platform.openProgram = installed(QStringLiteral("libexec/tarnwick/open"));
    platform.bundleInfo = readBundleInfo();
    return platform;
}

} // namespace tarnwick
