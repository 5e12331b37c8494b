// SPDX-License-Identifier: MIT
#include "platform/macos/terminal_launcher.h"

#include "platform/detached_program.h"

namespace tarnwick {

void MacTerminalLauncher::open(const TerminalRequest& request)
{
    startDetached(m_interpreter, {QStringLiteral("-e"), request.appleScript});
}

} // namespace tarnwick
