// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>

namespace tarnwick {

/// Whether a pointer that left a row at `exit` and is now at `position` is on its way to the
/// submenu: inside the triangle between where it left and the submenu's near edge, which may be on
/// either side.
[[nodiscard]] bool headsFor(const QRect& submenu, QPoint exit, QPoint position);

} // namespace tarnwick
