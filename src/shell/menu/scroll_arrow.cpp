// SPDX-License-Identifier: MIT
#include "shell/menu/scroll_arrow.h"

#include <QMenu>
#include <QMouseEvent>
#include <QStyleOptionFrame>
#include <QStyleOptionMenuItem>
#include <QStylePainter>

#include <algorithm>

namespace tarnwick {

namespace {

/// High enough to be hit with the pointer, whatever the style thinks.
constexpr int leastHeight = 16;

} // namespace

ScrollArrow::ScrollArrow(Qt::ArrowType direction, QMenu& menu)
    : QWidget(&menu)
    , m_direction(direction)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    hide();
}

QSize ScrollArrow::sizeHint() const
{
    const QStyle* const style = parentWidget()->style();
    return {0, style->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, parentWidget()) +
                   std::max(leastHeight, style->pixelMetric(QStyle::PM_MenuScrollerHeight, nullptr,
                                                            parentWidget()))};
}

void ScrollArrow::paintEvent(QPaintEvent*)
{
    const QWidget& menu = *parentWidget();
    QPainter painter(this);
    painter.fillRect(rect(), menu.palette().window());

    QStyleOptionFrame panel;
    panel.initFrom(&menu);
    panel.rect.translate(-pos());
    panel.state = QStyle::State_None;
    panel.lineWidth = menu.style()->pixelMetric(QStyle::PM_MenuPanelWidth, &panel, &menu);
    QStyleOptionMenuItem backdrop;
    backdrop.initFrom(&menu);
    backdrop.rect = panel.rect;
    backdrop.state = QStyle::State_None;
    menu.style()->drawPrimitive(QStyle::PE_PanelMenu, &backdrop, &painter, &menu);
    if (panel.lineWidth > 0)
        menu.style()->drawPrimitive(QStyle::PE_FrameMenu, &panel, &painter, &menu);

    QStyleOptionMenuItem arrow;
    arrow.initFrom(&menu);
    arrow.rect = rect();
    arrow.menuItemType = QStyleOptionMenuItem::Scroller;
    arrow.state = QStyle::State_Enabled;
    arrow.state.setFlag(QStyle::State_DownArrow, m_direction == Qt::DownArrow);
    menu.style()->drawControl(QStyle::CE_MenuScroller, &arrow, &painter, &menu);
}

void ScrollArrow::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void ScrollArrow::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}

} // namespace tarnwick
