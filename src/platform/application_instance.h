// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tarnwick {

/// Makes this process the user's one running copy of the application, until it ends. False only if
/// another process is that already. Where nobody can know, every process may go on.
[[nodiscard]] bool becomeRunningApplication(const QString& identifier);

} // namespace tarnwick
