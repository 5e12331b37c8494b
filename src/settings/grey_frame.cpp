// SPDX-License-Identifier: MIT
#include "settings/grey_frame.h"

#include <QPainter>
#include <QVBoxLayout>

namespace tarnwick {

GreyFrame::GreyFrame(QWidget* content, int padding, QWidget* parent)
    : QWidget(parent)
{
    auto* const layout = new QVBoxLayout(this);
    const int margin = padding + 1;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(content);
}

void GreyFrame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    // Not a pen: half of its line would be clipped where the screen has a scale factor.
    painter.setClipRegion(QRegion(rect()) - rect().adjusted(1, 1, -1, -1));
    painter.fillRect(rect(), Qt::gray);
}

} // namespace tarnwick
