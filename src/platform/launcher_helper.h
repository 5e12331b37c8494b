// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the program and its launcher helper, which starts it at login, have agreed on.
namespace tarnwick::launcher {

/// What the helper runs under and is registered as.
inline const QString identifier = QStringLiteral("org.tarnwick.TarnwickLauncher");
/// The notification on which the helper quits; its object is the program's own identifier.
inline const QString killNotification = QStringLiteral("killTarnwickLauncher");

} // namespace tarnwick::launcher
