// SPDX-License-Identifier: MIT
#include "platform/freedesktop/desktop_entries.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QSet>
#include <QStandardPaths>

#include <gio/gdesktopappinfo.h>

namespace tarnwick {

namespace {

using PathById = QMap<QString, QString>;

/// Whatever goes by the name of a desktop entry: a link to nowhere hides an entry, too.
std::optional<PathById> entryFiles(const QString& folder)
{
    const QDir root(folder);
    if (!root.isReadable())
        return {};
    PathById files;
    QDirIterator file(folder, QDir::Files | QDir::System | QDir::Hidden,
                      QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
    while (file.hasNext()) {
        const QString path = file.next();
        if (path.endsWith(u".desktop"))
            files.insert(root.relativeFilePath(path).replace(u'/', u'-'), path);
    }
    return files;
}

QString textOf(GDesktopAppInfo* info, const char* key)
{
    g_autofree char* text = g_desktop_app_info_get_string(info, key);
    return QString::fromUtf8(text);
}

std::optional<DesktopEntry> shownEntry(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return {}; // opening a pipe would wait for its writer
    g_autoptr(GDesktopAppInfo) info =
        g_desktop_app_info_new_from_filename(QFile::encodeName(path).constData());
    if (!info || g_desktop_app_info_get_is_hidden(info) ||
        !g_app_info_should_show(G_APP_INFO(info)))
        return {};
    DesktopEntry entry{path, textOf(info, G_KEY_FILE_DESKTOP_KEY_NAME),
                       textOf(info, G_KEY_FILE_DESKTOP_KEY_ICON)};
    return entry.name.isEmpty() ? std::nullopt : std::optional(std::move(entry));
}

QSet<QString> idsOfUser()
{
    QSet<QString> ids;
    for (const QString& folder : desktopEntryFolders(DesktopEntryPlace::User)) {
        const PathById files = entryFiles(folder).value_or(PathById());
        ids.unite({files.keyBegin(), files.keyEnd()});
    }
    return ids;
}

} // namespace

QStringList desktopEntryFolders(DesktopEntryPlace place)
{
    const QString own = QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation);
    if (place == DesktopEntryPlace::User)
        return {own};
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    folders.removeAll(own);
    return folders;
}

std::optional<QList<DesktopEntry>> shownDesktopEntries(DesktopEntryPlace place)
{
    QSet<QString> ids = place == DesktopEntryPlace::System ? idsOfUser() : QSet<QString>();
    QSet<QString> names;
    QList<DesktopEntry> entries;
    bool readable = false;
    for (const QString& folder : desktopEntryFolders(place)) {
        const auto files = entryFiles(folder);
        if (!files)
            continue;
        readable = true;
        for (const auto& [id, path] : files->asKeyValueRange()) {
            const auto known = ids.size();
            ids.insert(id);
            if (ids.size() == known)
                continue;
            auto entry = shownEntry(path);
            if (!entry || names.contains(entry->name))
                continue;
            names.insert(entry->name);
            entries += std::move(*entry);
        }
    }
    return readable ? std::optional(std::move(entries)) : std::nullopt;
}

} // namespace tarnwick
