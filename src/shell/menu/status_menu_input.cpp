// SPDX-License-Identifier: MIT
// How a status menu answers the pointer and the keyboard.
#include "shell/menu/hosted_row.h"
#include "shell/menu/hosting_view.h"
#include "shell/menu/hover_path.h"
#include "shell/menu/status_menu.h"
#include "views/handed_press.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

namespace tarnwick {

// An open submenu holds the pointer; QMenu passes its moves on to the menu they are over.
void StatusMenu::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    if (m_scroller.hover(position)) {
        closeSubmenu();
        return;
    }
    if (isOnTheWayToSubmenu(position)) {
        m_pointerRests.start();
        return;
    }
    m_pointerRests.stop();
    QMenu::mouseMoveEvent(event);
}

void StatusMenu::leaveEvent(QEvent* event)
{
    m_scroller.stop();
    QMenu::leaveEvent(event);
}

bool StatusMenu::isOnTheWayToSubmenu(QPoint position)
{
    const StatusMenu* const submenu = openSubmenu();
    if (!submenu || !rect().contains(position))
        return false;
    if (actionGeometry(submenu->menuAction()).contains(position)) {
        m_lastOnRow = position;
        return false;
    }
    const QRect target(mapFromGlobal(submenu->pos()), submenu->size());
    return headsFor(target, m_lastOnRow, position);
}

void StatusMenu::followPointer()
{
    const QPoint position = mapFromGlobal(QCursor::pos());
    const StatusMenu* const submenu = openSubmenu();
    if (!rect().contains(position) || (submenu && submenu->underMouse()))
        return;
    QMouseEvent move(QEvent::MouseMove, position, QCursor::pos(), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QMenu::mouseMoveEvent(&move);
}

void StatusMenu::mousePressEvent(QMouseEvent* event)
{
    const QPoint global = event->globalPosition().toPoint();
    const QPoint position = event->position().toPoint();
    if (rect().contains(position)) {
        // QMenu would close at the release of a press between the rows.
        const QAction* const entry = actionAt(position);
        if (!m_scroller.hover(position) && entry && !entry->isSeparator())
            QMenu::mousePressEvent(event);
        return;
    }
    StatusMenu* const ancestor = ancestorAt(global);
    if (ancestor && ancestor->rowAt(ancestor->mapFromGlobal(global)))
        handPressTo(*ancestor, *event);
    else if (ancestor || !topMenu()->answersPressOutside(global))
        QMenu::mousePressEvent(event);
}

void StatusMenu::handPressTo(StatusMenu& ancestor, const QMouseEvent& press)
{
    const QPoint position = ancestor.mapFromGlobal(press.globalPosition().toPoint());
    const HostedRow& row = *ancestor.rowAt(position);
    // The widget owns it.
    new HandedPress(*ancestor.childAt(position), press);
    if (!row.isHeld())
        ancestor.closeSubmenu();
}

bool StatusMenu::answersPressOutside(QPoint global)
{
    const ClickGuard::Time now{m_clock.elapsed()};
    if (m_clicks.repeatsOpening(global, now))
        return true;
    m_clicks.closedByPress(global, now);
    return false;
}

void StatusMenu::wheelEvent(QWheelEvent* event)
{
    event->accept();
    const QPoint global = event->globalPosition().toPoint();
    StatusMenu* const menu =
        rect().contains(event->position().toPoint()) ? this : ancestorAt(global);
    if (!menu)
        return;
    const int before = menu->m_scroller.offset();
    menu->m_scroller.scroll(*event);
    if (menu->m_scroller.offset() == before)
        return;
    menu->closeSubmenu();
    menu->followPointer();
}

void StatusMenu::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        step(event->key() == Qt::Key_Tab, true);
        return;
    case Qt::Key_Down:
    case Qt::Key_Up:
        step(event->key() == Qt::Key_Down, false);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (auto* const button = qobject_cast<QAbstractButton*>(focusWidget())) {
            button->click();
            return;
        }
        // QMenu would trigger the row's action and close.
        if (const HostedRow* const row = activeRow(); row && !row->menu()) {
            enter();
            return;
        }
        break;
    default:
        break;
    }
    QMenu::keyPressEvent(event);
    if (activeAction())
        m_scroller.reveal(actionGeometry(activeAction()));
    if (StatusMenu* const submenu = openSubmenu())
        submenu->enter();
}

bool StatusMenu::focusNextPrevChild(bool next)
{
    step(next, true);
    return true;
}

void StatusMenu::step(bool forward, bool throughRows)
{
    HostedRow* const from = activeRow();
    if (from && (throughRows || !from->menu()) && from->moveFocus(forward)) {
        revealFocus();
        return;
    }
    setFocus(Qt::PopupFocusReason);
    QKeyEvent key(QEvent::KeyPress, forward ? Qt::Key_Down : Qt::Key_Up, Qt::NoModifier);
    QMenu::keyPressEvent(&key);
    if (activeAction())
        m_scroller.reveal(actionGeometry(activeAction()));
    if (HostedRow* const row = activeRow(); row && !row->menu())
        row->focusEnd(forward);
    revealFocus();
}

void StatusMenu::enter()
{
    if (HostedRow* const row = activeRow(); row && !row->menu())
        row->focusEnd(true);
    revealFocus();
}

void StatusMenu::revealFocus()
{
    if (const QWidget* const inside = focusWidget(); inside && inside != this)
        m_scroller.reveal(QRect(inside->mapTo(this, QPoint()), inside->size()));
}

} // namespace tarnwick
