// SPDX-License-Identifier: MIT
#include "platform/freedesktop/autostart_entry.h"

namespace tarnwick {

namespace {

/// Before each of `special` in the text comes a backslash.
QString escaped(const QString& text, QStringView special)
{
    QString result;
    for (const QChar letter : text) {
        if (special.contains(letter))
            result += u'\\';
        result += letter;
    }
    return result;
}

/// As every value that is a string is written.
QString stringValue(const QString& text)
{
    return escaped(text, u"\\")
        .replace(u'\n', QStringLiteral("\\n"))
        .replace(u'\t', QStringLiteral("\\t"))
        .replace(u'\r', QStringLiteral("\\r"));
}

/// The command line of one program without arguments: quoted, and "%" stands for itself.
QString commandLine(const QString& program)
{
    QString path = program;
    path.replace(u'%', QStringLiteral("%%"));
    return u'"' + escaped(path, u"\\\"`$") + u'"';
}

QByteArray content(const QString& program)
{
    // TryExec: a program that has been uninstalled is passed over in silence. The last three put it
    // behind the panel. There is no X-GNOME-Autostart-Phase: systemd's generator of autostart units
    // passes over entries that have one (seen in version 252), and GNOME's default is the last.
    return QStringLiteral("[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=Tarnwick\n"
                          "Comment=Shows the state of your git working copies in the status bar\n"
                          "Icon=org.tarnwick.Tarnwick\n"
                          "Exec=%1\n"
                          "TryExec=%2\n"
                          "NoDisplay=true\n"
                          "X-GNOME-Autostart-enabled=true\n"
                          "X-KDE-autostart-after=panel\n"
                          "X-KDE-autostart-phase=2\n"
                          "X-LXQt-Need-Tray=true\n")
        .arg(stringValue(commandLine(program)), stringValue(program))
        .toUtf8();
}

} // namespace

LoginItemFile autostartEntry(const QString& folder, const QString& identifier,
                             const QString& program)
{
    return {folder + u'/' + identifier + QStringLiteral(".desktop"), program, content(program)};
}

} // namespace tarnwick
