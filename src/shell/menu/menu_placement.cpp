// SPDX-License-Identifier: MIT
#include "shell/menu/menu_placement.h"

#include <algorithm>
#include <limits>

namespace tarnwick {

namespace {

/// Half the side of a usual status item.
constexpr int pointerReach = 12;

/// In a corner of a screen whose panels take no space, an item counts as one of the upper or lower
/// panel: those are the usual ones.
constexpr int corner = 48;

Qt::Edge nearestEdge(const QPoint& point, const QRect& available)
{
    const int vertical = std::min(point.y() - available.top(), available.bottom() - point.y());
    const int horizontal = std::min(point.x() - available.left(), available.right() - point.x());
    if (vertical <= horizontal || (horizontal >= 0 && vertical < corner))
        return point.y() < available.center().y() ? Qt::TopEdge : Qt::BottomEdge;
    return point.x() < available.center().x() ? Qt::LeftEdge : Qt::RightEdge;
}

QRect itemNear(QPoint pointer, const QRect& screen, const QRect& available)
{
    const QRect around = QRect(pointer, QSize(1, 1))
                             .adjusted(-pointerReach, -pointerReach, pointerReach, pointerReach);
    QRect item = around;
    int nearest = std::numeric_limits<int>::max();
    const auto moveOntoPanel = [&](int thickness, int distance, QPoint direction) {
        if (thickness <= 0 || distance >= nearest)
            return;
        nearest = distance;
        item = around.translated(direction * (distance + pointerReach + 1));
    };
    moveOntoPanel(available.top() - screen.top(), pointer.y() - available.top(), {0, -1});
    moveOntoPanel(screen.bottom() - available.bottom(), available.bottom() - pointer.y(), {0, 1});
    moveOntoPanel(available.left() - screen.left(), pointer.x() - available.left(), {-1, 0});
    moveOntoPanel(screen.right() - available.right(), available.right() - pointer.x(), {1, 0});
    return item;
}

} // namespace

QRect areaWithoutPanels(QRect area, const QList<QRect>& panels)
{
    for (const QRect& panel : panels) {
        const QPoint middle = panel.center();
        if (!panel.intersects(area))
            continue;
        if (panel.width() >= panel.height() && middle.y() < area.center().y())
            area.setTop(panel.bottom() + 1);
        else if (panel.width() >= panel.height())
            area.setBottom(panel.top() - 1);
        else if (middle.x() < area.center().x())
            area.setLeft(panel.right() + 1);
        else
            area.setRight(panel.left() - 1);
    }
    return area;
}

QRect keptWithin(const QRect& available, QRect rect)
{
    rect.setSize(rect.size().boundedTo(available.size()));
    rect.moveLeft(std::clamp(rect.left(), available.left(), available.right() - rect.width() + 1));
    rect.moveTop(std::clamp(rect.top(), available.top(), available.bottom() - rect.height() + 1));
    return rect;
}

QRect placeMenu(const QRect& anchor, const QRect& screen, const QRect& available, QSize wanted)
{
    const QRect item = anchor.isEmpty() ? itemNear(anchor.topLeft(), screen, available) : anchor;
    QRect room = available;
    QRect menu({}, wanted);
    // The menu lies flush with the item and is cut off where the room ends.
    switch (nearestEdge(item.center(), available)) {
    case Qt::TopEdge:
        room.setTop(std::max(room.top(), item.bottom() + 1));
        menu.moveTopLeft(QPoint(item.left(), room.top()));
        break;
    case Qt::BottomEdge:
        room.setBottom(std::min(room.bottom(), item.top() - 1));
        menu.moveBottomLeft(QPoint(item.left(), room.bottom()));
        break;
    case Qt::LeftEdge:
        room.setLeft(std::max(room.left(), item.right() + 1));
        menu.moveTopLeft(QPoint(room.left(), item.top()));
        break;
    case Qt::RightEdge:
        room.setRight(std::min(room.right(), item.left() - 1));
        menu.moveTopRight(QPoint(room.right(), item.top()));
        break;
    }
    return keptWithin(room, menu);
}

QRect placeSubmenu(const QRect& menu, int top, const QRect& available, QSize wanted,
                   Qt::LayoutDirection direction)
{
    const int roomLeft = menu.left() - available.left();
    const int roomRight = available.right() - menu.right();
    const bool isLeftToRight = direction == Qt::LeftToRight;
    const int roomAhead = isLeftToRight ? roomRight : roomLeft;
    const int roomBehind = isLeftToRight ? roomLeft : roomRight;
    const bool turns = roomAhead < wanted.width() && roomBehind > roomAhead;
    QRect submenu(QPoint(menu.right() + 1, top), wanted);
    if (isLeftToRight == turns)
        submenu.moveRight(menu.left() - 1);
    return keptWithin(available, submenu);
}

} // namespace tarnwick
