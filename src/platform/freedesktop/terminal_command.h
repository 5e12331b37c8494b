// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace tarnwick {

struct TerminalCommand
{
    QString program;
    QStringList arguments;
};

/// Answers the absolute path of an executable by its name, or an empty text.
using ExecutableFinder = std::function<QString(const QString& name)>;

/// The command line that runs the argument vector `command` in a new window, in the terminal that
/// suits best among those found: the one that the user chose for all desktops, that of this
/// desktop, Debian's choice, or any. `desktops` is the content of XDG_CURRENT_DESKTOP. Terminals
/// that can be told are told to start in `folder`; it should exist, as some refuse otherwise.
[[nodiscard]] std::optional<TerminalCommand> terminalCommand(const QString& folder,
                                                             const QStringList& command,
                                                             const QString& desktops,
                                                             const ExecutableFinder& find);

/// The same for the desktop that this process runs on.
[[nodiscard]] std::optional<TerminalCommand> terminalCommand(const QString& folder,
                                                             const QStringList& command);

} // namespace tarnwick
