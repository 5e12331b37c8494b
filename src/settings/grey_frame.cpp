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
    painter.setPen(Qt::gray);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace tarnwick
