// SPDX-License-Identifier: MIT
#include "platform/freedesktop/terminal_launcher.h"

#include "platform/detached_program.h"
#include "platform/freedesktop/terminal_command.h"

#include <QDir>
#include <QFileInfo>

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
    // The traps keep a Ctrl+C that ends the command from ending this shell as well. The user's
    // shell is an argument, because some terminals set SHELL to what they run.
    const QString script = QStringLiteral(R"(trap : INT QUIT
export SHELL="$1"
[ -x "$SHELL" ] || SHELL=/bin/sh
cd -- "$2" && { shift 2; [ $# -eq 0 ] || "$@"; }
exec "$SHELL")");
    return QStringList{QStringLiteral("/bin/sh"), QStringLiteral("-c"),          script,
                       QStringLiteral("sh"),      qEnvironmentVariable("SHELL"), dir} +
           command;
}

void FreedesktopTerminalLauncher::open(const TerminalRequest& request)
{
    const QString folder = startFolder(request.dir);
    if (const auto terminal =
            terminalCommand(folder, terminalSession(request.dir, request.command)))
        startDetached(terminal->program, terminal->arguments, folder);
}

} // namespace tarnwick
