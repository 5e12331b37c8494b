// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace tarnwick {

/// What a new terminal window is to do, said twice: for desktops on which programs are started, and
/// for those on which the terminal is told by a script.
struct TerminalRequest
{
    /// Absolute, and taken literally: nothing in it is ever read by a shell.
    QString dir;
    /// The program to run in `dir`, with its arguments; empty for just the user's shell.
    QStringList command;
    /// The same in AppleScript.
    QString appleScript;
};

/// Opens windows of the user's terminal.
class TerminalLauncher
{
public:
    virtual ~TerminalLauncher() = default;

    /// Opens a new window and returns at once. The window stays open after the command, with the
    /// user's shell in it. Nothing is reported to the caller if no terminal can be started.
    virtual void open(const TerminalRequest& request) = 0;
};

} // namespace tarnwick
