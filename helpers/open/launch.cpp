// SPDX-License-Identifier: MIT
#include "open/launch.h"

#include "open/gio_call.h"
#include "platform/freedesktop/desktop_entries.h"
#include "platform/freedesktop/terminal_command.h"

#include <QFile>

#include <gio/gdesktopappinfo.h>

namespace tarnwick {

namespace {

std::optional<DesktopEntry> findEntry(const QString& name)
{
    for (const auto place : {DesktopEntryPlace::User, DesktopEntryPlace::System}) {
        for (const DesktopEntry& entry :
             DesktopEntryReader(place).shownEntries().value_or(QList<DesktopEntry>())) {
            if (entry.name == name || entry.name + QStringLiteral(".app") == name)
                return entry;
        }
    }
    return {};
}

/// The words as they stand in the key Exec.
QByteArray execLine(const QStringList& words)
{
    QByteArray line;
    for (const QString& word : words) {
        g_autofree char* quoted = g_shell_quote(QFile::encodeName(word).constData());
        line += QByteArray(quoted).replace('%', "%%") + ' ';
    }
    return line;
}

/// The same application with the terminal that it wants in front: GIO knows but a few terminals.
/// Null where none is installed.
GDesktopAppInfo* wrappedInTerminal(const DesktopEntry& entry, const QByteArray& directory)
{
    const auto terminal = terminalCommand(QFile::decodeName(directory), {});
    g_autoptr(GKeyFile) file = g_key_file_new();
    if (!terminal || !g_key_file_load_from_file(file, QFile::encodeName(entry.path).constData(),
                                                G_KEY_FILE_NONE, nullptr))
        return nullptr;
    g_autofree char* command =
        g_key_file_get_string(file, G_KEY_FILE_DESKTOP_GROUP, G_KEY_FILE_DESKTOP_KEY_EXEC, nullptr);
    const QByteArray line =
        execLine(QStringList(terminal->program) + terminal->arguments) + command;
    g_key_file_set_string(file, G_KEY_FILE_DESKTOP_GROUP, G_KEY_FILE_DESKTOP_KEY_EXEC,
                          line.constData());
    g_key_file_set_boolean(file, G_KEY_FILE_DESKTOP_GROUP, G_KEY_FILE_DESKTOP_KEY_TERMINAL, FALSE);
    return g_desktop_app_info_new_from_keyfile(file);
}

} // namespace

Failure openInApplication(const QByteArray& name, const QByteArray& directory)
{
    const auto entry = findEntry(QString::fromUtf8(name));
    if (!entry)
        return "there is no application called \"" + name + '"';
    if (!g_file_test(directory.constData(), G_FILE_TEST_EXISTS))
        return directory + " does not exist";

    g_autoptr(GDesktopAppInfo) application =
        g_desktop_app_info_new_from_filename(QFile::encodeName(entry->path).constData());
    if (application &&
        g_desktop_app_info_get_boolean(application, G_KEY_FILE_DESKTOP_KEY_TERMINAL)) {
        g_object_unref(application);
        application = wrappedInTerminal(*entry, directory);
        if (!application)
            return name + " needs a terminal, and none is installed";
    }
    if (!application)
        return name + " has just been removed";

    g_autoptr(GFile) file = g_file_new_for_path(directory.constData());
    g_autofree char* uri = g_file_get_uri(file);
    GList uris{uri, nullptr, nullptr};
    g_autoptr(GAsyncResult) result = waitForResult([&](GAsyncReadyCallback done, gpointer data) {
        g_app_info_launch_uris_async(G_APP_INFO(application), &uris, nullptr, nullptr, done, data);
    });
    g_autoptr(GError) error = nullptr;
    if (!g_app_info_launch_uris_finish(G_APP_INFO(application), result, &error))
        return name + " cannot be started: " + error->message;
    return {};
}

} // namespace tarnwick
