// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace tarnwick {

/// An address that the user keeps with a repository. Any scheme; "file://" for local folders.
struct RepoLink
{
    QString link;
    QString title;

    bool operator==(const RepoLink&) const = default;
    friend std::size_t qHash(const RepoLink& value, std::size_t seed = 0)
    {
        return qHashMulti(seed, value.link, value.title);
    }
};

/// Reads one link from each line that is not empty: "link @@ title", where spaces belong to the
/// link and to the title but for the one on either side of the signs. The text is trusted: a line
/// without the separator stops the process.
[[nodiscard]] QList<RepoLink> parseRepoLinks(const QString& text);

} // namespace tarnwick
