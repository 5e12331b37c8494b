// SPDX-License-Identifier: MIT
#include "model/terminal_request.h"

namespace tarnwick {

TerminalRequest terminalRequest(const QString& dir, const QString& gitSubcommand)
{
    QStringList command;
    QString shellTail;
    if (!gitSubcommand.isEmpty()) {
        command = {QStringLiteral("git"), gitSubcommand};
        shellTail = QStringLiteral(" && ") + command.join(u' ');
    }
    const QString appleScript =
        QStringLiteral("tell application \"Terminal\"\n    activate\n    do script \"cd '") + dir +
        u'\'' + shellTail + QStringLiteral("\"\nend tell");
    return {.dir = dir, .command = command, .appleScript = appleScript};
}

} // namespace tarnwick
