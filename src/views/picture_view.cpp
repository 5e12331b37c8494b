// SPDX-License-Identifier: MIT
#include "views/picture_view.h"

#include "views/symbols.h"

#include <QPainter>

#include <algorithm>

namespace tarnwick {

void PictureView::setPicture(const Picture& picture, const QColor& color)
{
    if (picture == m_picture && color == m_color)
        return;
    m_picture = picture;
    m_color = color;
    update();
}

void PictureView::paintEvent(QPaintEvent* /*event*/)
{
    QRect square({}, QSize(1, 1) * std::min(width(), height()));
    square.moveCenter(rect().center());
    QPainter painter(this);
    if (m_picture.icon.isNull()) {
        painter.setPen(m_color);
        drawSymbol(painter, square, symbolNamed(m_picture.symbol));
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(square, m_picture.icon.pixmap(square.size(), devicePixelRatio()));
}

} // namespace tarnwick
