// SPDX-License-Identifier: MIT
#pragma once

#include "platform/terminal_launcher.h"

namespace tarnwick {

/// Starts the terminal that terminalCommand() chooses. Where there is none, nothing happens.
class FreedesktopTerminalLauncher : public TerminalLauncher
{
public:
    void open(const TerminalRequest& request) override;
};

/// The argument vector to run in the window of a terminal: does what `cd DIR && COMMAND` does when
/// typed into a fresh window, but with every word taken literally, and leaves the user's shell,
/// which is that of the variable SHELL here, whatever it is in the window.
[[nodiscard]] QStringList terminalSession(const QString& dir, const QStringList& command);

} // namespace tarnwick
