// SPDX-License-Identifier: MIT
#include "views/spinner.h"

#include "views/colors.h"

#include <QPainter>

#include <chrono>

namespace tarnwick {

using namespace std::chrono_literals;

namespace {

constexpr int spokes = 8;
constexpr auto interval = 90ms;
constexpr qreal diameter = 12;
constexpr QSize frame(20, 16);

} // namespace

Spinner::Spinner(QWidget* parent)
    : QWidget(parent)
{
    setFixedSize(frame);
    setAccessibleName(tr("Loading"));
}

QSize Spinner::sizeHint() const
{
    return frame;
}

void Spinner::hideEvent(QHideEvent* /*event*/)
{
    m_timer.stop();
}

void Spinner::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect().toRectF().center());
    QPen pen(labelColor(palette()), diameter / 9, Qt::SolidLine, Qt::RoundCap);
    for (int age = 0; age < spokes; ++age) {
        QColor color = labelColor(palette());
        color.setAlphaF(0.8F - 0.65F * static_cast<float>(age) / (spokes - 1));
        pen.setColor(color);
        painter.setPen(pen);
        painter.save();
        painter.rotate(360.0 / spokes * (m_phase - age));
        painter.drawLine(QPointF(0, -diameter * 0.24), QPointF(0, -diameter * 0.43));
        painter.restore();
    }
}

void Spinner::showEvent(QShowEvent* /*event*/)
{
    m_timer.start(interval.count(), this);
}

void Spinner::timerEvent(QTimerEvent* /*event*/)
{
    m_phase = (m_phase + 1) % spokes;
    update();
}

} // namespace tarnwick
