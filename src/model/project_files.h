// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace tarnwick {

/// A project of a development environment, found among a repository's files.
struct ProjectFile
{
    /// Absolute, without a slash at the end.
    QString path;
    /// The application whose picture stands for it.
    QString image;
    QString title;

    bool operator==(const ProjectFile&) const = default;
    friend std::size_t qHash(const ProjectFile& value, std::size_t seed = 0)
    {
        return qHashMulti(seed, value.path, value.image, value.title);
    }
};

/// The projects in a directory and one level down, one kind after the other, each in the order of
/// the file system. Writes a diagnostic line for each. Blocks while it reads the folders.
[[nodiscard]] QList<ProjectFile> projectFiles(const QString& dir);

/// What is in a directory and `depth` levels below, as file URLs, percent-escaped, those of
/// directories ending in "/". Hidden entries are left out. Empty for what cannot be listed.
[[nodiscard]] QStringList scanDirectory(const QString& path, int depth);

} // namespace tarnwick
