// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRect>

#include <optional>

namespace tarnwick {

/// The colour of the part of a panel that `area` covers: on X11 as seen on the screen, elsewhere
/// only what is known of the desktop. Reads pixels back from the X server: a few milliseconds.
[[nodiscard]] std::optional<QColor> panelColor(const QRect& area);

} // namespace tarnwick
