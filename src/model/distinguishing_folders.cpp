// SPDX-License-Identifier: MIT
#include "model/distinguishing_folders.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace tarnwick {

namespace {

QString nameOf(const QString& dir)
{
    return dir.section(u'/', -1);
}

/// The last components of the path without its very last.
QString folderOf(const QString& dir, qsizetype depth)
{
    QStringList folders = dir.split(u'/');
    folders.removeLast();
    return folders.last(std::min(depth, folders.size())).join(u'/');
}

QString distinguishingFolder(const QString& dir, const QSet<QString>& namesakes)
{
    if (namesakes.size() < 2)
        return {};
    const auto isAmbiguous = [&](qsizetype depth) {
        return std::ranges::any_of(namesakes, [&](const QString& other) {
            return other != dir && folderOf(other, depth) == folderOf(dir, depth);
        });
    };
    qsizetype depth = 1;
    while (depth < dir.count(u'/') && isAmbiguous(depth))
        ++depth;
    return folderOf(dir, depth);
}

} // namespace

QStringList distinguishingFolders(const QStringList& dirs)
{
    QHash<QString, QSet<QString>> namesakes;
    for (const QString& dir : dirs)
        namesakes[nameOf(dir)].insert(dir);
    QStringList folders;
    for (const QString& dir : dirs)
        folders += distinguishingFolder(dir, namesakes.value(nameOf(dir)));
    return folders;
}

} // namespace tarnwick
