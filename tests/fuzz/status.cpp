// SPDX-License-Identifier: MIT
#include "fuzz.h"
#include "model/git_status.h"
#include "model/status_details.h"
#include "views/status_summary.h"

using namespace tarnwick;

void fuzz(const QByteArray& input)
try {
    const QString text = QString::fromUtf8(input);
    require(statusDetails(text).conflicts <= text.count(u'\n') + 1);
    const QString summary = statusSummary(text).value_or(QString());
    require(!statusText(summary, SummaryStyle::Words, Appearance::Dark).empty());
    require(changedFileCount(text) == changedFiles(text).size());
    require(changedFiles(text, 2) == changedFiles(text).mid(0, 2));
} catch (const Stop&) {
    require(!input.contains('\n'));
}
