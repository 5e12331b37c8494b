// SPDX-License-Identifier: MIT
#include "platform/freedesktop/terminal_command.h"

#include <QSet>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace tarnwick {

namespace {

/// The better come first.
enum class Rank { ChosenByUser, OfThisDesktop, ChosenByDebian, Known };

struct Terminal
{
    QStringView program;
    /// What goes before the command to run, separated by spaces; %d is the folder.
    QStringView options;
    /// The desktops whose own terminal it is.
    QStringView desktops = {};
    Rank elsewhere = Rank::Known;
};

// All of these take the command as the rest of their command line, one word an argument.
constexpr std::array terminals{
    Terminal{u"xdg-terminal-exec", u"", u"", Rank::ChosenByUser},
    Terminal{u"x-terminal-emulator", u"-e", u"", Rank::ChosenByDebian},
    Terminal{u"gnome-terminal", u"--working-directory=%d --", u"GNOME Unity X-Cinnamon Budgie"},
    Terminal{u"ptyxis", u"--new-window --working-directory=%d --", u"GNOME"},
    Terminal{u"kgx", u"--working-directory=%d --", u"GNOME"},
    Terminal{u"xfce4-terminal", u"--working-directory=%d -x", u"XFCE"},
    Terminal{u"konsole", u"--workdir %d -e", u"KDE"},
    Terminal{u"mate-terminal", u"--working-directory=%d -x", u"MATE"},
    Terminal{u"lxterminal", u"--working-directory=%d -e", u"LXDE"},
    Terminal{u"qterminal", u"--workdir %d -e", u"LXQt"},
    Terminal{u"kitty", u"--directory=%d"},
    Terminal{u"alacritty", u"--working-directory %d -e"},
    Terminal{u"foot", u"--working-directory=%d", u"sway"},
    Terminal{u"ghostty", u"--working-directory=%d -e"},
    Terminal{u"wezterm", u"start --cwd %d --"},
    Terminal{u"terminator", u"--working-directory=%d -x"},
    Terminal{u"urxvt", u"-cd %d -e"},
    Terminal{u"st", u"-e"},
    Terminal{u"uxterm", u"-e"},
    Terminal{u"xterm", u"-e"},
};

QSet<QStringView> words(QStringView text, QChar separator)
{
    const auto parts = text.split(separator, Qt::SkipEmptyParts);
    return {parts.begin(), parts.end()};
}

Rank rankOn(const QSet<QStringView>& desktops, const Terminal& terminal)
{
    return words(terminal.desktops, u' ').intersects(desktops) ? Rank::OfThisDesktop
                                                               : terminal.elsewhere;
}

} // namespace

std::optional<TerminalCommand> terminalCommand(const QString& folder, const QStringList& command,
                                               const QString& desktops,
                                               const ExecutableFinder& find)
{
    auto ranked = terminals;
    std::stable_sort(ranked.begin(), ranked.end(),
                     [current = words(desktops, u':')](const auto& one, const auto& other) {
                         return rankOn(current, one) < rankOn(current, other);
                     });
    for (const Terminal& terminal : ranked) {
        const QString program = find(terminal.program.toString());
        if (program.isEmpty())
            continue;
        QStringList arguments = terminal.options.toString().split(u' ', Qt::SkipEmptyParts);
        arguments.replaceInStrings(QStringLiteral("%d"), folder);
        return TerminalCommand{program, arguments + command};
    }
    return {};
}

std::optional<TerminalCommand> terminalCommand(const QString& folder, const QStringList& command)
{
    return terminalCommand(
        folder, command, qEnvironmentVariable("XDG_CURRENT_DESKTOP"),
        [](const QString& name) { return QStandardPaths::findExecutable(name); });
}

} // namespace tarnwick
