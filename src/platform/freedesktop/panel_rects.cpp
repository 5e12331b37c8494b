// SPDX-License-Identifier: MIT
#include "platform/freedesktop/panel_rects.h"

#include <QRegion>

#include <algorithm>
#include <tuple>

namespace tarnwick {

namespace {

/// Of a panel; one that hides itself leaves a thin strip.
constexpr int minThickness = 8;

/// Of a monitor; a dock that is thicker is transparent for the most part.
constexpr int maxThicknessDivisor = 3;

int thickness(const QRect& rect)
{
    return std::min(rect.width(), rect.height());
}

/// Some docks are a wide transparent window of which only the strut is panel.
QRect visiblePart(const DockWindow& dock)
{
    QRect part;
    for (const QRect& strut : dock.struts)
        part |= strut & dock.geometry;
    return part.isEmpty() ? dock.geometry : part;
}

QRect inLogicalPixels(const QRect& rect, const Monitor& monitor)
{
    const QPoint origin = monitor.geometry.topLeft();
    const auto scaled = [&monitor](int pixels) { return qRound(pixels / monitor.scale); };
    const QRect relative = rect.translated(-origin);
    const QPoint topLeft(scaled(relative.left()), scaled(relative.top()));
    const QPoint end(scaled(relative.right() + 1), scaled(relative.bottom() + 1));
    return QRect(topLeft, end - QPoint(1, 1)).translated(origin) & monitor.geometry;
}

} // namespace

QList<QRect> panelRects(const QList<DockWindow>& docks, const QList<Monitor>& monitors)
{
    QList<QRect> all;
    for (const Monitor& monitor : monitors) {
        QList<QRect> panels;
        for (const DockWindow& dock : docks)
            panels += inLogicalPixels(visiblePart(dock), monitor);
        panels.removeIf([&monitor](const QRect& panel) {
            return thickness(panel) < minThickness ||
                   thickness(panel) > thickness(monitor.geometry) / maxThicknessDivisor;
        });
        if (panels.isEmpty()) {
            const QRegion kept = QRegion(monitor.geometry) - monitor.available;
            panels = QList<QRect>(kept.begin(), kept.end());
        }
        std::ranges::sort(panels, {},
                          [](const QRect& panel) { return std::tuple(panel.top(), panel.left()); });
        all += panels;
    }
    return all;
}

QRect areaBehind(const QRect& item, const QList<QRect>& panels)
{
    if (!item.isEmpty()) {
        const bool isHidden =
            !panels.isEmpty() && std::ranges::none_of(panels, [&item](const QRect& panel) {
                return panel.intersects(item);
            });
        return isHidden ? QRect() : item;
    }
    const auto under = std::ranges::find_if(
        panels, [&item](const QRect& panel) { return panel.contains(item.topLeft()); });
    return under != panels.end() ? *under : panels.value(0);
}

} // namespace tarnwick
