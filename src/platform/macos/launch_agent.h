// SPDX-License-Identifier: MIT
#pragma once

#include "platform/login_item_file.h"

namespace tarnwick {

/// The property list in the user's LaunchAgents folder by which launchd starts `program`, an
/// absolute path, at each login on the screen. `identifier` is the agent's label and names the
/// file. The user is shown the agent as a part of `application`, an identifier, too, and may switch
/// it off.
[[nodiscard]] LoginItemFile launchAgent(const QString& folder, const QString& identifier,
                                        const QString& program, const QString& application);

} // namespace tarnwick
