// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRect>

#include <optional>

namespace tarnwick {

/// The colour of the desktop's panel: on X11 as seen on the screen, under `item` or, where that is
/// empty, in the strip that windows leave free. Elsewhere only what is known of the desktop.
/// Reads pixels back from the X server: a few milliseconds.
std::optional<QColor> panelColor(const QRect& item);

} // namespace tarnwick
