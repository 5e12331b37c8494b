// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>

namespace tarnwick {

/// Light or dark ink, whichever stands out more against the panel.
[[nodiscard]] QColor statusGlyphColor(const QColor& panel);

/// The status item's glyph in `ink` on nothing, drawn anew for every size that is asked for.
[[nodiscard]] QIcon statusGlyphIcon(const QColor& ink);

} // namespace tarnwick
