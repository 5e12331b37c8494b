// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>

namespace tarnwick {

using ParentByProcess = QHash<qint64, qint64>;

/// All processes of the system but those that have ended already, with their parents. Any thread.
[[nodiscard]] ParentByProcess runningProcesses();

} // namespace tarnwick
