// SPDX-License-Identifier: MIT
#include "model/project_files.h"

#include "model/diagnostics.h"

#include <QDirIterator>
#include <QUrl>

#include <array>

namespace tarnwick {

namespace {

/// The suffix to look for stands in place of the path, a template in place of the title.
const std::array<ProjectFile, 2>& projectFileKinds()
{
    static const std::array<ProjectFile, 2> kinds{
        ProjectFile{QStringLiteral(".xcodeproj"), QStringLiteral("Xcode"),
                    QStringLiteral("[FILENAME]")},
        ProjectFile{QStringLiteral(".xcworkspace"), QStringLiteral("Xcode"),
                    QStringLiteral("[FILENAME]")}};
    return kinds;
}

QString fileUrlText(const QFileInfo& entry)
{
    const QString url = QUrl::fromLocalFile(entry.absoluteFilePath()).toString(QUrl::FullyEncoded);
    return entry.isDir() ? url + u'/' : url;
}

} // namespace

QList<ProjectFile> projectFiles(const QString& dir)
{
    const QStringList entries = scanDirectory(dir, 1);
    QList<ProjectFile> found;
    for (const ProjectFile& kind : projectFileKinds()) {
        for (const QString& entry : entries) {
            QString path = entry.chopped(1);
            if (!path.endsWith(kind.path))
                continue;
            path.remove(QStringLiteral("file://"))
                .replace(QStringLiteral("%20"), QStringLiteral(" "));
            writeDiagnosticLine(QStringLiteral("ppath: ") + path);
            const QString fileName = path.split(u'/').constLast();
            found.append({path, kind.image,
                          QString(kind.title).replace(QStringLiteral("[FILENAME]"), fileName)});
        }
    }
    return found;
}

QStringList scanDirectory(const QString& path, int depth)
{
    // The iterator would take the empty path for the working directory.
    if (!QFileInfo(path).isDir())
        return {};
    QList<QFileInfo> entries;
    for (QDirIterator listing(path, QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
         listing.hasNext();)
        entries.append(listing.nextFileInfo());

    QStringList urls;
    for (const QFileInfo& entry : entries)
        urls += fileUrlText(entry);
    if (depth < 1)
        return urls;
    for (const QFileInfo& entry : entries)
        urls += scanDirectory(entry.filePath(), depth - 1);
    return urls;
}

} // namespace tarnwick
