// SPDX-License-Identifier: MIT
#include "shell/menu/submenu_path.h"

#include <QPolygon>

namespace tarnwick {

namespace {

/// How far the triangle begins behind the pointer: hands are not steady.
constexpr int tolerance = 6;

} // namespace

bool SubmenuPath::contains(QPoint position, const QRect& submenu) const
{
    const bool toTheRight = submenu.center().x() > m_start.x();
    const int nearEdge = toTheRight ? submenu.left() : submenu.right();
    const QPoint apex = m_start - QPoint(toTheRight ? tolerance : -tolerance, 0);
    const QPolygon triangle(
        {apex, QPoint(nearEdge, submenu.top()), QPoint(nearEdge, submenu.bottom())});
    return triangle.containsPoint(position, Qt::OddEvenFill);
}

} // namespace tarnwick
