// SPDX-License-Identifier: MIT
#include "shell/menu/menu_scroller.h"

#include "shell/menu/scroll_arrow.h"

#include <QApplication>
#include <QMenu>
#include <QWheelEvent>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;

constexpr auto hoverStep = 20ms;
constexpr int hoverPixels = 16;
constexpr int wheelNotch = 120;

} // namespace

MenuScroller::MenuScroller(QMenu& menu)
    : m_menu(menu)
    , m_up(new ScrollArrow(Qt::UpArrow, menu))
    , m_down(new ScrollArrow(Qt::DownArrow, menu))
{
    m_timer.setInterval(hoverStep);
    connect(&m_timer, &QTimer::timeout, this,
            [this] { scrollTo(m_offset + m_direction * hoverPixels); });
}

void MenuScroller::fit(int contentHeight)
{
    m_contentHeight = contentHeight;
    scrollTo(m_offset);
}

void MenuScroller::scrollTo(int offset)
{
    const int end = std::max(0, m_contentHeight - m_menu.height());
    const int before = std::exchange(m_offset, std::clamp(offset, 0, end));
    placeArrows();
    if (m_offset == before)
        return;
    m_menu.setContentsMargins(0, -m_offset, 0, 0);
    Q_EMIT scrolled();
}

void MenuScroller::scroll(const QWheelEvent& wheel)
{
    qreal pixels = wheel.pixelDelta().y();
    if (wheel.pixelDelta().isNull()) {
        const int notch = QApplication::wheelScrollLines() * m_menu.fontMetrics().lineSpacing();
        pixels = static_cast<qreal>(wheel.angleDelta().y() * notch) / wheelNotch;
    }
    m_wheelRest -= pixels;
    const int whole = static_cast<int>(m_wheelRest);
    m_wheelRest -= whole;
    scrollTo(m_offset + whole);
}

void MenuScroller::reveal(const QRect& row)
{
    const int strip = m_up->sizeHint().height();
    if (row.top() < strip)
        scrollTo(m_offset + row.top() - strip);
    else if (row.bottom() >= m_menu.height() - strip)
        scrollTo(m_offset + row.bottom() + 1 - (m_menu.height() - strip));
}

bool MenuScroller::hover(QPoint position)
{
    const auto covers = [position](const QWidget& arrow) {
        return !arrow.isHidden() && arrow.geometry().contains(position);
    };
    m_direction = covers(*m_up) ? -1 : covers(*m_down) ? 1 : 0;
    if (m_direction == 0)
        m_timer.stop();
    else if (!m_timer.isActive())
        m_timer.start();
    return m_direction != 0;
}

void MenuScroller::placeArrows()
{
    const QSize size(m_menu.width(), m_up->sizeHint().height());
    m_up->setGeometry(QRect({0, 0}, size));
    m_down->setGeometry(QRect({0, m_menu.height() - size.height()}, size));
    m_up->setVisible(m_offset > 0);
    m_down->setVisible(m_offset < m_contentHeight - m_menu.height());
    if ((m_direction < 0 && m_up->isHidden()) || (m_direction > 0 && m_down->isHidden()))
        m_timer.stop();
    // Rows that were added since lie above the arrows.
    for (ScrollArrow* const arrow : {m_up, m_down}) {
        if (!arrow->isHidden())
            arrow->raise();
    }
}

} // namespace tarnwick
