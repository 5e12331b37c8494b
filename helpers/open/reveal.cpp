// SPDX-License-Identifier: MIT
#include "open/reveal.h"

#include "open/gio_call.h"

namespace tarnwick {

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds replyTimeout = 5s; // enough for the bus to start a file manager

bool exists(GFile* file)
{
    return g_file_query_file_type(file, G_FILE_QUERY_INFO_NOFOLLOW_SYMLINKS, nullptr) !=
           G_FILE_TYPE_UNKNOWN;
}

GFile* nearestExisting(const QByteArray& path)
{
    GFile* file = g_file_new_for_path(path.constData());
    while (!exists(file)) {
        GFile* const parent = g_file_get_parent(file);
        if (!parent)
            break;
        g_object_unref(file);
        file = parent;
    }
    return file;
}

bool selectInFileManager(GFile* file)
{
    g_autoptr(GDBusConnection) bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
    if (!bus)
        return false;
    g_autofree char* uri = g_file_get_uri(file);
    const char* const uris[] = {uri, nullptr};
    g_autoptr(GVariant) reply = g_dbus_connection_call_sync(
        bus, "org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
        "org.freedesktop.FileManager1", "ShowItems", g_variant_new("(^ass)", uris, ""), nullptr,
        G_DBUS_CALL_FLAGS_NONE, static_cast<int>(replyTimeout.count()), nullptr, nullptr);
    return reply != nullptr;
}

Failure openParentFolder(GFile* file)
{
    g_autoptr(GFile) parent = g_file_get_parent(file);
    g_autofree char* uri = g_file_get_uri(parent ? parent : file);
    g_autoptr(GAsyncResult) result = waitForResult([&](GAsyncReadyCallback done, gpointer data) {
        g_app_info_launch_default_for_uri_async(uri, nullptr, nullptr, done, data);
    });
    g_autoptr(GError) error = nullptr;
    if (!g_app_info_launch_default_for_uri_finish(result, &error))
        return QByteArray("no file manager shows ") + uri + ": " + error->message;
    return {};
}

} // namespace

Failure revealInFileManager(const QByteArray& path)
{
    g_autoptr(GFile) file = nearestExisting(path);
    return selectInFileManager(file) ? std::nullopt : openParentFolder(file);
}

} // namespace tarnwick
