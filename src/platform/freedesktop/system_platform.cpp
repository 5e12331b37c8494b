// SPDX-License-Identifier: MIT
#include "platform/freedesktop/tray_host.h"
#include "platform/platform.h"

#include <QCoreApplication>
#include <QDir>

namespace tarnwick {

Platform systemPlatform()
{
    Platform platform;
    platform.trayHost = std::make_unique<FreedesktopTrayHost>();
    platform.openProgram = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                           QStringLiteral("/../libexec/tarnwick/open"));
    return platform;
}

} // namespace tarnwick
