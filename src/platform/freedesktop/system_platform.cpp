// SPDX-License-Identifier: MIT
#include "platform/freedesktop/palette_follower.h"
#include "platform/freedesktop/tray_host.h"
#include "platform/platform.h"

#include <QCoreApplication>
#include <QDir>

namespace tarnwick {

Platform systemPlatform()
{
    Platform platform;
    platform.trayHost = std::make_unique<FreedesktopTrayHost>();
    platform.paletteFollower = std::make_unique<PaletteFollower>();
    platform.openProgram = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                           QStringLiteral("/../libexec/tarnwick/open"));
    return platform;
}

} // namespace tarnwick
