// SPDX-License-Identifier: MIT
#pragma once

#include "platform/terminal_launcher.h"

namespace tarnwick {

/// Asks for a terminal in `dir` in which git runs the subcommand; an empty one asks for the
/// terminal alone. The AppleScript takes `dir` as it is: a quote or a backslash in it breaks the
/// script.
[[nodiscard]] TerminalRequest terminalRequest(const QString& dir, const QString& gitSubcommand);

/// Asks for a terminal in the home directory in which git fetches each of these that has a remote,
/// one after the other. The names of those that failed stand at the end.
[[nodiscard]] TerminalRequest fetchAllRequest(const QStringList& dirs);

} // namespace tarnwick
