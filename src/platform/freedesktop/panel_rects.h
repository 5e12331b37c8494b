// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/dock_windows.h"

#include <QList>
#include <QRect>

namespace tarnwick {

struct Monitor
{
    /// In logical pixels, but for the position, which Qt does not scale.
    QRect geometry;
    /// What the window manager leaves to windows; with several monitors usually everything.
    QRect available;
    qreal scale = 1;
};

/// Where panels are to be seen, in Qt's logical coordinates: monitor by monitor, the upper ones
/// first. Panels that are no window of their own are found as what a monitor keeps from windows;
/// one that has hidden itself but for a thin strip is left out.
[[nodiscard]] QList<QRect> panelRects(const QList<DockWindow>& docks,
                                      const QList<Monitor>& monitors);

/// Where to look for the colour behind a status item: at the item itself, unless its panel is
/// hidden. An item without size is a point on its panel; the first panel counts where none is
/// there.
[[nodiscard]] QRect areaBehind(const QRect& item, const QList<QRect>& panels);

} // namespace tarnwick
