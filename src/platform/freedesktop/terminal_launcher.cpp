// SPDX-License-Identifier: MIT
#include "platform/freedesktop/terminal_launcher.h"

#include "platform/freedesktop/terminal_command.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

namespace tarnwick {

namespace {

/// Where a window can start: `dir`, unless it has vanished or is forbidden.
QString startFolder(const QString& dir)
{
    const QFileInfo folder(dir);
    return folder.isDir() && folder.isExecutable() ? dir : QDir::homePath();
}

} // namespace

QStringList terminalSession(const QString& dir, const QStringList& command)
{
    // The traps keep a Ctrl+C that ends the command from ending this shell as well.
    const QString script = QStringLiteral(R"(trap : INT QUIT
cd -- "$1" && { shift; [ $# -eq 0 ] || "$@"; }
[ -x "${SHELL-}" ] || SHELL=/bin/sh
exec "$SHELL")");
    return QStringList{QStringLiteral("/bin/sh"), QStringLiteral("-c"), script,
                       QStringLiteral("sh"), dir} +
           command;
}

void FreedesktopTerminalLauncher::open(const TerminalRequest& request)
{
    const QString folder = startFolder(request.dir);
    const auto command = terminalCommand(folder, terminalSession(request.dir, request.command));
    if (!command)
        return;

    QProcess terminal;
    terminal.setProgram(command->program);
    terminal.setArguments(command->arguments);
    terminal.setWorkingDirectory(folder);
    // It outlives us, and must not keep our caller's channels open or write between our lines.
    terminal.setStandardInputFile(QProcess::nullDevice());
    terminal.setStandardOutputFile(QProcess::nullDevice());
    terminal.setStandardErrorFile(QProcess::nullDevice());
    terminal.startDetached();
}

} // namespace tarnwick
