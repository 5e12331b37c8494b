// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>

namespace tarnwick {

/// The pointer's way from a row to the row's open submenu, which usually crosses other rows. All
/// points and rectangles are in one coordinate system.
class SubmenuPath
{
public:
    /// The pointer is on the row that the submenu belongs to.
    void start(QPoint onRow) { m_start = onRow; }

    /// Whether the pointer at `position` is on its way to `submenu`, on whichever side that is:
    /// within the triangle between where it was last on the row and the submenu's near edge.
    [[nodiscard]] bool contains(QPoint position, const QRect& submenu) const;

private:
    QPoint m_start;
};

} // namespace tarnwick
