// SPDX-License-Identifier: MIT
#include "views/panel/entry_image.h"

#include "views/symbols.h"

#include <QPainter>

namespace tarnwick {

EntryImageView::EntryImageView(EntryImage image, int side, const QColor& color, QWidget* parent)
    : QWidget(parent)
    , m_image(std::move(image))
    , m_color(color)
{
    setFixedSize(side, side);
}

void EntryImageView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (!m_image.icon.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(rect(), m_image.icon.pixmap(size(), devicePixelRatio()));
        return;
    }
    painter.setPen(m_color);
    drawSymbol(painter, rect(), symbolNamed(m_image.symbol));
}

} // namespace tarnwick
