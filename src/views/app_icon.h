// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QString>

namespace tarnwick {

class ApplicationFolder;

/// The icon of an application by its file name, the system's before the user's own; null where
/// neither has one.
[[nodiscard]] QIcon appIcon(const QString& name, const ApplicationFolder& system,
                            const ApplicationFolder& user);

} // namespace tarnwick
