// SPDX-License-Identifier: MIT
#include "shell/menu/hosted_row.h"

#include "shell/menu/hosting_view.h"

#include <QAccessible>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tarnwick {

namespace {

/// Strong enough to be seen, weak enough for coloured text to keep its contrast.
constexpr float highlightStrength = 0.12F;
constexpr qreal highlightRadius = 5;

} // namespace

HostedRow::HostedRow(HostingView* view, QWidget* parent)
    : QWidget(parent)
    , m_view(view)
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(view);
    const auto announce = [this](QAccessible::Event change) {
        if (!QAccessible::isActive())
            return;
        QAccessibleEvent event(this, change);
        QAccessible::updateAccessibility(&event);
    };
    connect(view, &HostingView::textChanged, this, [this, announce] {
        if (!isVisible())
            announceSize();
        announce(QAccessible::NameChanged);
    });
    connect(view, &HostingView::descriptionChanged, this,
            [announce] { announce(QAccessible::DescriptionChanged); });
}

void HostedRow::announceSize()
{
    const auto widgets = findChildren<QWidget*>(); // outer ones first
    std::for_each(widgets.rbegin(), widgets.rend(),
                  [](QWidget* widget) { widget->updateGeometry(); });
    updateGeometry();
}

StatusMenu& HostedRow::ensureSubmenu()
{
    if (!m_submenu)
        m_submenu = m_makeSubmenu();
    return *m_submenu;
}

void HostedRow::setActive(bool active)
{
    if (std::exchange(m_isActive, active) != active && hasSubmenu())
        update();
}

QWidgetList HostedRow::focusWidgets() const
{
    QWidgetList widgets;
    for (QWidget* w = nextInFocusChain(); w && w != this; w = w->nextInFocusChain()) {
        if (isAncestorOf(w) && w->isVisible() && w->isEnabled() &&
            (w->focusPolicy() & Qt::TabFocus) != 0)
            widgets.append(w);
    }
    return widgets;
}

void HostedRow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        announceSize();
}

void HostedRow::hideEvent(QHideEvent* event)
{
    m_isPressed = false;
    QWidget::hideEvent(event);
}

void HostedRow::mousePressEvent(QMouseEvent* event)
{
    m_isPressed = true;
    event->accept();
}

void HostedRow::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void HostedRow::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    if (std::exchange(m_isPressed, false) && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

void HostedRow::paintEvent(QPaintEvent* /*event*/)
{
    if (!m_isActive || !hasSubmenu())
        return;
    QColor highlight = palette().color(QPalette::Highlight);
    highlight.setAlphaF(highlightStrength);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(highlight);
    painter.drawRoundedRect(rect(), highlightRadius, highlightRadius);
}

} // namespace tarnwick
