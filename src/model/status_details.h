// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

namespace tarnwick {

/// What git's short status with branch header says beyond the parts of the summary; for its format
/// see git_status.h. All zero and false for a text without a header, which is no status.
struct StatusDetails
{
    /// Paths that a merge has left to the user.
    qsizetype conflicts = 0;
    qsizetype renames = 0;
    bool isDetached = false;
    /// Never true while the head is detached.
    bool lacksUpstream = false;
    /// The branch has an upstream that is not there (any more).
    bool isUpstreamGone = false;

    bool operator==(const StatusDetails&) const = default;
};

/// Reads the whole text; pure.
[[nodiscard]] StatusDetails statusDetails(QStringView gitStatus);

} // namespace tarnwick
