// SPDX-License-Identifier: MIT
#include "model/repo_link.h"

#include "model/diagnostics.h"

#include <QStringList>

namespace tarnwick {

QList<RepoLink> parseRepoLinks(const QString& text)
{
    QList<RepoLink> links;
    for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList parts = line.split(QStringLiteral(" @@ "));
        if (parts.size() < 2)
            stopProcess();
        links.append({parts[0], parts[1]});
    }
    return links;
}

} // namespace tarnwick
