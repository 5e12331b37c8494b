// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A notification between processes of one user is a signal on the session bus. Its arguments are
/// two strings: the notification's name and its object.
namespace tarnwick::notificationSignal {

inline const QString path = QStringLiteral("/org/tarnwick/DistributedNotifications");
inline const QString interface = QStringLiteral("org.tarnwick.DistributedNotifications");
inline const QString member = QStringLiteral("Posted");

} // namespace tarnwick::notificationSignal
