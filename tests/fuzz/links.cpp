// SPDX-License-Identifier: MIT
#include "fuzz.h"
#include "model/repo_link.h"

void fuzz(const QByteArray& input)
{
    qsizetype incomplete = 0;
    for (const QByteArray& line : input.split('\n'))
        incomplete += !line.isEmpty() && !line.contains(" @@ ");
    try {
        require(tarnwick::parseRepoLinks(QString::fromUtf8(input)).size() <= input.size());
        require(incomplete == 0);
    } catch (const Stop&) {
        require(incomplete > 0);
    }
}
