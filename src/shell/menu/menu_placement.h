// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRect>

namespace tarnwick {

/// What the panels leave of a screen's area. A panel takes the whole strip along the edge it is at.
[[nodiscard]] QRect areaWithoutPanels(QRect area, const QList<QRect>& panels);

/// Where a menu of the wanted size goes, in the coordinates of the screen: next to the status item
/// at `anchor`, on the side that faces away from the panel, never over the item and never beyond
/// `available`, which is what the panels leave of `screen`. The result is smaller than wanted where
/// the room is.
///
/// An empty anchor is the pointer's position, for panels that keep the item's place to themselves.
/// The item is then taken to be on the nearest panel, since the pointer may be on an entry of a
/// menu that the panel shows for it, or to reach a little way around the pointer where there is
/// none.
[[nodiscard]] QRect placeMenu(const QRect& anchor, const QRect& screen, const QRect& available,
                              QSize wanted);

/// Where the submenu of a row of `menu` goes: beside the menu, behind it in the direction of
/// reading or before it where the room is larger, and as high up as `top` if that keeps it within
/// `available`.
[[nodiscard]] QRect placeSubmenu(const QRect& menu, int top, const QRect& available, QSize wanted,
                                 Qt::LayoutDirection direction);

/// `rect` moved, and shrunk if it must be, to lie within `available`.
[[nodiscard]] QRect keptWithin(const QRect& available, QRect rect);

} // namespace tarnwick
