// SPDX-License-Identifier: MIT
#include "model/terminal_request.h"

#include <QDir>

namespace tarnwick {

namespace {

/// Its arguments are the directories. A Ctrl+C ends the fetch that runs and those to come. In one
/// line, as it may be typed into a window.
constexpr QLatin1String fetchAllScript(
    "failed=; found=; stopped=; trap stopped=1 INT; "
    "for dir do "
    R"(if remotes=$(git -C "$dir" remote 2>/dev/null) && [ -z "$remotes" ]; then continue; fi; )"
    R"(found=1; printf '\n%s\n' "$dir"; )"
    R"(git -C "$dir" fetch || failed=$(printf '%s\n  %s' "$failed" "$dir"); )"
    R"([ -z "$stopped" ] || break; )"
    "done; "
    R"([ -z "$stopped" ] || printf '\nStopped.\n'; )"
    R"(if [ -z "$found" ]; then echo 'No repository has a remote.'; )"
    R"(elif [ "$failed" ]; then printf '\nCould not fetch:%s\n' "$failed"; )"
    R"(elif [ -z "$stopped" ]; then printf '\nFetched all.\n'; fi)");

/// A word for a POSIX shell.
QString shellWord(QString text)
{
    return u'\'' + text.replace(u'\'', QStringLiteral(R"('\'')")) + u'\'';
}

QString appleScriptText(QString text)
{
    text.replace(u'\\', QStringLiteral("\\\\"));
    return u'"' + text.replace(u'"', QStringLiteral("\\\"")) + u'"';
}

QString terminalScript(const QString& quotedCommand)
{
    return QStringLiteral("tell application \"Terminal\"\n    activate\n    do script ") +
           quotedCommand + QStringLiteral("\nend tell");
}

} // namespace

TerminalRequest terminalRequest(const QString& dir, const QString& gitSubcommand)
{
    QStringList command;
    QString shellTail;
    if (!gitSubcommand.isEmpty()) {
        command = {QStringLiteral("git"), gitSubcommand};
        shellTail = QStringLiteral(" && ") + command.join(u' ');
    }
    const QString typed = QStringLiteral("\"cd '") + dir + u'\'' + shellTail + u'"';
    return {.dir = dir, .command = command, .appleScript = terminalScript(typed)};
}

TerminalRequest fetchAllRequest(const QStringList& dirs)
{
    const QStringList command = QStringList{QStringLiteral("/bin/sh"), QStringLiteral("-c"),
                                            fetchAllScript, QStringLiteral("sh")} +
                                dirs;
    QStringList words;
    for (const QString& word : command)
        words += shellWord(word);
    return {.dir = QDir::homePath(),
            .command = command,
            .appleScript = terminalScript(appleScriptText(words.join(u' ')))};
}

} // namespace tarnwick
