// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace tarnwick {

/// Below XDG_DATA_DIRS, or below XDG_DATA_HOME.
enum class DesktopEntryPlace { System, User };

/// An application as its desktop entry describes it.
struct DesktopEntry
{
    /// Of the file that is in force.
    QString path;
    /// In no language but the one that it was written in.
    QString name;
    /// A name of the icon theme, or an absolute path; empty where there is none.
    QString icon;
};

/// The folders of the place, those that take precedence first. They need not exist.
[[nodiscard]] QStringList desktopEntryFolders(DesktopEntryPlace place);

/// Reads the desktop entries of a place. Main thread only.
class DesktopEntryReader
{
public:
    explicit DesktopEntryReader(DesktopEntryPlace place)
        : m_place(place)
    {}

    /// The applications that this desktop is to show, each name once: of two entries of one name
    /// counts the one that takes precedence. An entry of the user's own, even a hidden one,
    /// replaces the system's of the same id. Nothing if no folder of the place can be read.
    ///
    /// Looks at every file, and reads those that are new or have changed since the last call: some
    /// ten milliseconds at first where hundreds are installed. Of each folder it looks at the first
    /// 5000 files on six levels, and not into those of more than 256 KiB.
    [[nodiscard]] std::optional<QList<DesktopEntry>> shownEntries();

private:
    struct Application
    {
        DesktopEntry entry;
        QStringList programs;
    };
    struct ReadFile
    {
        QDateTime changed;
        qint64 size;
        /// None if this desktop never shows it.
        std::optional<Application> application;
    };

    [[nodiscard]] static std::optional<Application> read(const QString& path);

    DesktopEntryPlace m_place;
    QHash<QString, ReadFile> m_files;
};

} // namespace tarnwick
