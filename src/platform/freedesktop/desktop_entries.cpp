// SPDX-License-Identifier: MIT
#include "platform/freedesktop/desktop_entries.h"

#include "platform/regular_file.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMap>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>
#include <glib.h>
#include <memory>
#include <utility>

namespace tarnwick {

namespace {

using FileById = QMap<QString, QFileInfo>;

// Far more than anybody has installed. What goes beyond is passed over: a link among the entries
// can lead to the whole disk, and all is read on the main thread.
constexpr int maxDepth = 6;
constexpr int maxFiles = 5000;
constexpr qint64 maxEntrySize = qint64{256} * 1024;

struct Subfolder
{
    QString path;
    int depth;
};

/// Whatever goes by the name of a desktop entry: a link to nowhere hides an entry, too. The higher
/// folders come first.
std::optional<FileById> entryFiles(const QString& folder)
{
    const QDir root(folder);
    if (!root.isReadable())
        return {};
    FileById files;
    QList<Subfolder> folders{{folder, 1}};
    int seen = 0;
    for (qsizetype index = 0; index < folders.size(); ++index) {
        const Subfolder current = folders[index];
        QDirIterator file(current.path,
                          QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
        while (file.hasNext()) {
            if (++seen > maxFiles)
                return files;
            const QString path = file.next();
            if (file.fileInfo().isDir()) {
                if (current.depth < maxDepth)
                    folders += {path, current.depth + 1};
            } else if (path.endsWith(u".desktop")) {
                files.insert(root.relativeFilePath(path).replace(u'/', u'-'), file.fileInfo());
            }
        }
    }
    return files;
}

/// The group "Desktop Entry" of a file (Desktop Entry Specification 1.5). GIO's own class for it
/// would read every application folder there is, through any link.
class EntryKeys
{
public:
    explicit EntryKeys(const QByteArray& bytes)
        : m_isLoaded(g_key_file_load_from_data(m_file.get(), bytes.constData(),
                                               static_cast<gsize>(bytes.size()), G_KEY_FILE_NONE,
                                               nullptr))
    {}

    [[nodiscard]] bool isLoaded() const { return m_isLoaded; }
    [[nodiscard]] bool flag(const char* key) const
    {
        return g_key_file_get_boolean(m_file.get(), G_KEY_FILE_DESKTOP_GROUP, key, nullptr);
    }
    [[nodiscard]] QString text(const char* key) const
    {
        g_autofree char* text =
            g_key_file_get_string(m_file.get(), G_KEY_FILE_DESKTOP_GROUP, key, nullptr);
        return QString::fromUtf8(text);
    }
    [[nodiscard]] QStringList list(const char* key) const
    {
        return text(key).split(u';', Qt::SkipEmptyParts);
    }

private:
    const std::unique_ptr<GKeyFile, decltype(&g_key_file_unref)> m_file{g_key_file_new(),
                                                                        g_key_file_unref};
    bool m_isLoaded;
};

bool isProgram(const QString& name)
{
    g_autofree char* found = g_find_program_in_path(QFile::encodeName(name).constData());
    return found;
}

/// The programs that the entry speaks of. Nothing if its command is none.
std::optional<QStringList> programsOf(const EntryKeys& keys)
{
    QStringList programs{keys.text(G_KEY_FILE_DESKTOP_KEY_TRY_EXEC)};
    const QString command = keys.text(G_KEY_FILE_DESKTOP_KEY_EXEC);
    g_auto(GStrv) arguments = nullptr;
    if (!command.isEmpty()) {
        if (!g_shell_parse_argv(command.toUtf8().constData(), nullptr, &arguments, nullptr))
            return {};
        programs += QString::fromUtf8(arguments[0]);
    }
    programs.removeAll(QString());
    return programs;
}

/// Looks each program up once: many entries start the same one.
class ProgramSearch
{
public:
    [[nodiscard]] bool findsAll(const QStringList& programs)
    {
        return std::ranges::all_of(programs, [this](const QString& program) {
            auto known = m_found.find(program);
            if (known == m_found.end())
                known = m_found.insert(program, isProgram(program));
            return *known;
        });
    }

private:
    QHash<QString, bool> m_found;
};

/// The first name of this desktop that the entry mentions decides.
bool isForThisDesktop(const EntryKeys& keys)
{
    const QStringList only = keys.list(G_KEY_FILE_DESKTOP_KEY_ONLY_SHOW_IN);
    const QStringList never = keys.list(G_KEY_FILE_DESKTOP_KEY_NOT_SHOW_IN);
    for (const QString& desktop : qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':')) {
        if (only.contains(desktop))
            return true;
        if (never.contains(desktop))
            return false;
    }
    return only.isEmpty();
}

QSet<QString> idsOfUser()
{
    QSet<QString> ids;
    for (const QString& folder : desktopEntryFolders(DesktopEntryPlace::User)) {
        const FileById files = entryFiles(folder).value_or(FileById());
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

std::optional<QList<DesktopEntry>> DesktopEntryReader::shownEntries()
{
    QSet<QString> ids = m_place == DesktopEntryPlace::System ? idsOfUser() : QSet<QString>();
    QSet<QString> names;
    QList<DesktopEntry> entries;
    ProgramSearch programs;
    const QHash<QString, ReadFile> known = std::exchange(m_files, {});
    bool readable = false;
    for (const QString& folder : desktopEntryFolders(m_place)) {
        const auto files = entryFiles(folder);
        if (!files)
            continue;
        readable = true;
        for (const auto& [id, file] : files->asKeyValueRange()) {
            const auto idCount = ids.size();
            ids.insert(id);
            if (ids.size() == idCount)
                continue;
            const QString path = file.filePath();
            const QDateTime changed = file.metadataChangeTime();
            const auto before = known.constFind(path);
            const bool isSame =
                before != known.cend() && before->changed == changed && before->size == file.size();
            const auto& application =
                m_files.insert(path, isSame ? *before : ReadFile{changed, file.size(), read(path)})
                    ->application;
            if (!application || names.contains(application->entry.name) ||
                !programs.findsAll(application->programs))
                continue;
            names.insert(application->entry.name);
            entries += application->entry;
        }
    }
    return readable ? std::optional(std::move(entries)) : std::nullopt;
}

std::optional<DesktopEntryReader::Application> DesktopEntryReader::read(const QString& path)
{
    const EntryKeys keys(readRegularFile(path, maxEntrySize).bytes.value_or(QByteArray()));
    if (!keys.isLoaded() ||
        keys.text(G_KEY_FILE_DESKTOP_KEY_TYPE) !=
            QStringLiteral(G_KEY_FILE_DESKTOP_TYPE_APPLICATION) ||
        keys.flag(G_KEY_FILE_DESKTOP_KEY_HIDDEN) || keys.flag(G_KEY_FILE_DESKTOP_KEY_NO_DISPLAY) ||
        !isForThisDesktop(keys))
        return {};
    auto programs = programsOf(keys);
    DesktopEntry entry{path, keys.text(G_KEY_FILE_DESKTOP_KEY_NAME),
                       keys.text(G_KEY_FILE_DESKTOP_KEY_ICON)};
    if (!programs || entry.name.isEmpty())
        return {};
    return Application{std::move(entry), std::move(*programs)};
}

} // namespace tarnwick
