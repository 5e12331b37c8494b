// SPDX-License-Identifier: MIT
#pragma once

#include "platform/appearance.h"
#include "views/text_line.h"

#include <QString>

#include <vector>

namespace tarnwick {

enum class SummaryStyle { Words, OnlyIcons };

/// One part of a status summary ("3", a no-break space, "added") as it is shown: the glyph of its
/// word, the count, the word unless only icons are wanted, and three spaces to the next part, in
/// the colour of its word. A part with an unknown word is shown unchanged, in white.
[[nodiscard]] TextSegment statusPartText(const QString& part, SummaryStyle style,
                                         Appearance appearance);

/// The whole summary, whose parts stand in `statusString` with ", " between them.
[[nodiscard]] std::vector<TextSegment> statusText(const QString& statusString, SummaryStyle style,
                                                  Appearance appearance);

} // namespace tarnwick
