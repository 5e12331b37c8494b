// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <limits>
#include <optional>

/// Reading of git's short status with branch header (`git status -sb`, "Short Format" in
/// git-status(1)): a header line that begins with "## ", then one line per path, made of a
/// two-character code, a space and the path; every line ends with a line feed.
///
/// The reading is textual on purpose: counts come from searches over the whole text, so a path
/// that contains a status code is counted too. All functions are pure.
namespace tarnwick {

/// Splits at every occurrence of each separator in turn and trims spaces and tabs, but no line
/// feeds, from each piece. Empty pieces stay: there is always one piece more than occurrences.
[[nodiscard]] QStringList components2(const QString& text, const QStringList& separators);

/// One part of the summary: a decimal count, a no-break space and a word; nothing for a count of 0.
using SummaryPart = std::optional<QString>;

/// In the order of the summary.
struct SummaryParts
{
    SummaryPart changes;
    SummaryPart behind;
    SummaryPart ahead;
    SummaryPart added;
    SummaryPart untracked;
    SummaryPart staged;
    SummaryPart removed;
    SummaryPart deleted;
};

[[nodiscard]] SummaryParts summaryParts(const QString& gitStatus);

/// All parts that apply, joined by ", "; nothing for a clean working tree that is level with its
/// upstream.
[[nodiscard]] std::optional<QString> statusSummary(const QString& gitStatus);

/// The status lines of the changed paths, up to a limit. A path changed both in the index and in
/// the working tree ("MM ") stands at the end as two lines, staged ("M  ") and changed (" M ").
/// Stops the process for a text without any line feed, which is no status.
[[nodiscard]] QStringList changedFiles(const QString& gitStatus,
                                       qsizetype limit = std::numeric_limits<qsizetype>::max());
/// How many `changedFiles()` returns without a limit.
[[nodiscard]] qsizetype changedFileCount(const QString& gitStatus);

} // namespace tarnwick
