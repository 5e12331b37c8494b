// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRect>

namespace tarnwick {

/// A window that says of itself that it is a panel, in pixels of the whole X11 screen.
struct DockWindow
{
    QRect geometry;
    /// The strips at the edges that it asks other windows to keep off; empty if it hides itself.
    QList<QRect> struts = {};
};

/// The docks that the X11 window manager knows; none on other display systems. Asks the X server
/// each time: a few round trips.
[[nodiscard]] QList<DockWindow> dockWindows();

} // namespace tarnwick
