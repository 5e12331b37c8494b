// SPDX-License-Identifier: MIT
#pragma once

#include "platform/terminal_launcher.h"

namespace tarnwick {

/// Has the system's AppleScript interpreter tell the Terminal application. The first time the
/// system asks the user whether we may.
class MacTerminalLauncher : public TerminalLauncher
{
public:
    /// `interpreter` is the absolute path of osascript.
    explicit MacTerminalLauncher(QString interpreter)
        : m_interpreter(std::move(interpreter))
    {}

    void open(const TerminalRequest& request) override;

private:
    const QString m_interpreter;
};

} // namespace tarnwick
