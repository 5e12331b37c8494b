// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QRect>
#include <QString>

#include <optional>

namespace tarnwick {

/// The colour of the part of a panel that `area` covers: on X11 as seen on the screen, elsewhere
/// only what is known of the desktop. Reads pixels back from the X server: a few milliseconds.
[[nodiscard]] std::optional<QColor> panelColor(const QRect& area);

/// The name of the item's icon on panels that cannot be read but look up an icon's name and draw it
/// in the colour of their texts; empty elsewhere, and where the icon is not installed.
[[nodiscard]] QString tintedIconName();

} // namespace tarnwick
