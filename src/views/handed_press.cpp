// SPDX-License-Identifier: MIT
#include "views/handed_press.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

namespace tarnwick {

HandedPress::HandedPress(QWidget& target, const QMouseEvent& press)
    : QObject(&target)
    , m_target(target)
{
    give(press);
    qApp->installEventFilter(this);
}

bool HandedPress::eventFilter(QObject* watched, QEvent* event)
{
    // On its way into the window: none of our widgets may be meant to get it.
    if (event->type() != QEvent::MouseButtonRelease || !watched->isWindowType())
        return false;
    qApp->removeEventFilter(this);
    deleteLater();
    give(*static_cast<QMouseEvent*>(event));
    return true;
}

void HandedPress::give(const QMouseEvent& event)
{
    const QPointF position = m_target.mapFromGlobal(event.globalPosition());
    QMouseEvent given(event.type() == QEvent::MouseButtonRelease ? QEvent::MouseButtonRelease
                                                                 : QEvent::MouseButtonPress,
                      position, event.globalPosition(), event.button(), event.buttons(),
                      event.modifiers(), event.pointingDevice());
    QCoreApplication::sendEvent(&m_target, &given);
}

} // namespace tarnwick
