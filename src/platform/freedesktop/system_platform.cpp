// SPDX-License-Identifier: MIT
#include "platform/freedesktop/application_folder.h"
#include "platform/freedesktop/login_services.h"
#include "platform/freedesktop/palette_follower.h"
#include "platform/freedesktop/terminal_launcher.h"
#include "platform/freedesktop/tray_host.h"
#include "platform/freedesktop/x11_active_window.h"
#include "platform/input_grab.h"
#include "platform/platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>

namespace tarnwick {

namespace {

/// `path` is relative to the folder that the program is in.
QString installed(const QString& path)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + path);
}

QString helper(const QString& name)
{
    return installed(QStringLiteral(TARNWICK_HELPERS "/") + name);
}

QJsonObject readBundleInfo()
{
    QFile file(installed(QStringLiteral(TARNWICK_DATA "/Info.json")));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

} // namespace

Platform systemPlatform()
{
    Platform platform;
    platform.trayHost = std::make_unique<FreedesktopTrayHost>();
    // A menu that is no popup is activated itself.
    if (popupsHoldInput())
        platform.activeWindow = std::make_unique<X11ActiveWindow>();
    else
        platform.activeWindow = std::make_unique<ActiveWindow>();
    platform.paletteFollower = std::make_unique<PaletteFollower>();
    platform.terminal = std::make_unique<FreedesktopTerminalLauncher>();
    searchIconsOfApplications();
    platform.systemApplications =
        std::make_unique<FreedesktopApplicationFolder>(DesktopEntryPlace::System);
    platform.userApplications =
        std::make_unique<FreedesktopApplicationFolder>(DesktopEntryPlace::User);
    platform.loginServices =
        std::make_unique<FreedesktopLoginServices>(helper(QStringLiteral("tarnwick-launcher")));
    platform.openProgram = helper(QStringLiteral("open"));
    platform.bundleInfo = readBundleInfo();
    return platform;
}

} // namespace tarnwick
