// SPDX-License-Identifier: MIT
#include "views/panel/divider.h"

#include "views/colors.h"

#include <QPainter>

namespace tarnwick {

namespace {

constexpr int padding = 10;

} // namespace

Divider::Divider(QWidget* parent)
    : QWidget(parent)
{
    setFixedHeight(2 * padding + 1);
}

void Divider::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(QRect(padding, padding, width() - 2 * padding, 1),
                            separatorColor(palette()));
}

} // namespace tarnwick
