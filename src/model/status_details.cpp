// SPDX-License-Identifier: MIT
#include "model/status_details.h"

#include <QStringTokenizer>

namespace tarnwick {

namespace {

/// Of the two-letter codes, those that git-status(1) lists as unmerged.
bool isConflict(QStringView line)
{
    return line[0] == u'U' || line[1] == u'U' || line.startsWith(u"AA") || line.startsWith(u"DD");
}

/// "main", "main...origin/main [gone]", "No commits yet on main" or "HEAD (no branch)"; neither
/// three dots nor a space can be part of a branch's name.
void readHeader(QStringView branch, StatusDetails& details)
{
    details.isDetached = branch == u"HEAD (no branch)";
    details.lacksUpstream = !details.isDetached && !branch.contains(u"...");
    details.isUpstreamGone = branch.endsWith(u" [gone]");
}

} // namespace

StatusDetails statusDetails(QStringView gitStatus)
{
    constexpr QStringView header = u"## ";
    StatusDetails details;
    for (const QStringView line : gitStatus.tokenize(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(header))
            readHeader(line.sliced(header.size()), details);
        else if (line.size() < 2)
            continue;
        else if (isConflict(line))
            ++details.conflicts;
        else if (line[0] == u'R' || line[1] == u'R')
            ++details.renames;
    }
    return details;
}

} // namespace tarnwick
