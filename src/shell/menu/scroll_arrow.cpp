// SPDX-License-Identifier: MIT
#include "shell/menu/scroll_arrow.h"

#include <QMouseEvent>
#include <QStyleOption>
#include <QStylePainter>

namespace tarnwick {

namespace {

/// High enough to be hit with the pointer.
constexpr int stripHeight = 18;
constexpr int arrowSize = 12;

} // namespace

void drawMenuBackground(QPainter& painter, const QWidget& widget)
{
    painter.fillRect(widget.rect(), widget.palette().window());
    QStyleOptionMenuItem background;
    background.initFrom(&widget);
    background.state = QStyle::State_None;
    background.rect.adjust(-2, -2, 2, 2); // some styles outline it
    widget.style()->drawPrimitive(QStyle::PE_PanelMenu, &background, &painter, &widget);
}

ScrollArrow::ScrollArrow(Qt::ArrowType direction, QWidget* parent)
    : QWidget(parent)
    , m_direction(direction)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    hide();
}

QSize ScrollArrow::sizeHint() const
{
    return {0, stripHeight};
}

void ScrollArrow::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void ScrollArrow::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}

void ScrollArrow::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    drawMenuBackground(painter, *this);
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter,
                                     QSize(arrowSize, arrowSize), rect());
    painter.drawPrimitive(m_direction == Qt::UpArrow ? QStyle::PE_IndicatorArrowUp
                                                     : QStyle::PE_IndicatorArrowDown,
                          arrow);
}

} // namespace tarnwick
