// SPDX-License-Identifier: MIT
#include "shell/menu/hover_path.h"

#include <QPolygon>

namespace tarnwick {

namespace {

/// How far the triangle begins behind the pointer: hands are not steady.
constexpr int slack = 6;

} // namespace

bool headsFor(const QRect& submenu, QPoint exit, QPoint position)
{
    const bool toTheRight = submenu.center().x() > exit.x();
    const int nearEdge = toTheRight ? submenu.left() : submenu.right();
    const QPoint apex = exit - QPoint(toTheRight ? slack : -slack, 0);
    const QPolygon triangle(
        {apex, QPoint(nearEdge, submenu.top()), QPoint(nearEdge, submenu.bottom())});
    return triangle.containsPoint(position, Qt::OddEvenFill);
}

} // namespace tarnwick
