// SPDX-License-Identifier: MIT
#include "shell/menu/hosted_row.h"

#include "shell/menu/hosting_view.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace tarnwick {

HostedRow::HostedRow(HostingView* view, QObject* parent)
    : QWidgetAction(parent)
    , m_view(view)
{
    const auto takeText = [this] {
        // What is an ampersand to the row would be a shortcut to the menu.
        setText(m_view->text().replace(u'&', QStringLiteral("&&")));
    };
    takeText();
    connect(view, &HostingView::textChanged, this, takeText);
    view->installEventFilter(this);
    view->setMouseTracking(true);
    adoptChildren();
    setDefaultWidget(view);
}

bool HostedRow::moveFocus(bool forward)
{
    const QWidgetList widgets = focusWidgets();
    const qsizetype next = widgets.indexOf(m_view->window()->focusWidget()) + (forward ? 1 : -1);
    if (next < 0 || next >= widgets.size())
        return false;
    widgets[next]->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void HostedRow::focusEnd(bool first)
{
    const QWidgetList widgets = focusWidgets();
    if (!widgets.isEmpty())
        (first ? widgets.first() : widgets.last())
            ->setFocus(first ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

bool HostedRow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_view)
        return filterViewEvent(*event);
    if (event->type() != QEvent::KeyPress)
        return false;
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
        return QCoreApplication::sendEvent(m_view->window(), event);
    default:
        return false;
    }
}

bool HostedRow::filterViewEvent(QEvent& event)
{
    switch (event.type()) {
    case QEvent::Show:
    case QEvent::LayoutRequest:
        adoptChildren();
        return false;
    case QEvent::Hide:
        m_isHeld = false;
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_isHeld = true;
        event.accept();
        return true;
    case QEvent::MouseButtonRelease: {
        const QPoint position = static_cast<QMouseEvent&>(event).position().toPoint();
        event.accept();
        if (std::exchange(m_isHeld, false) && m_view->rect().contains(position))
            Q_EMIT clicked();
        return true;
    }
    default:
        return false;
    }
}

void HostedRow::adoptChildren()
{
    for (QWidget* const child : m_view->findChildren<QWidget*>()) {
        child->setMouseTracking(true);
        if (qobject_cast<QAbstractButton*>(child))
            child->installEventFilter(this);
    }
}

QWidgetList HostedRow::focusWidgets() const
{
    QWidgetList widgets;
    for (QWidget* w = m_view->nextInFocusChain(); w && w != m_view; w = w->nextInFocusChain()) {
        if (m_view->isAncestorOf(w) && w->isVisible() && w->isEnabled() &&
            (w->focusPolicy() & Qt::TabFocus) != 0)
            widgets.append(w);
    }
    return widgets;
}

} // namespace tarnwick
