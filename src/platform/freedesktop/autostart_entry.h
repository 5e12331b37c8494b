// SPDX-License-Identifier: MIT
#pragma once

#include "platform/login_item_file.h"

namespace tarnwick {

/// The desktop entry in the user's autostart folder that has `program`, an absolute path, started.
/// `identifier` names the file. The entry is shown to the user, who may switch it off, under the
/// name of the application.
[[nodiscard]] LoginItemFile autostartEntry(const QString& folder, const QString& identifier,
                                           const QString& program);

} // namespace tarnwick
