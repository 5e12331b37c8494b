// SPDX-License-Identifier: MIT
#include "settings/grey_frame.h"

#include <QPainter>
#include <QVBoxLayout>

namespace tarnwick {

GreyFrame::GreyFrame(QWidget* content, int inset, QWidget* parent)
    : QWidget(parent)
{
    auto* const layout = new QVBoxLayout(this);
    const int margin = inset + 1;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(content);
}

void GreyFrame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    // A pen would be cut in half at the edges of a screen that scales.
    painter.setClipRegion(QRegion(rect()) - rect().adjusted(1, 1, -1, -1));
    painter.fillRect(rect(), Qt::gray);
}

} // namespace tarnwick
