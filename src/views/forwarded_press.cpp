// SPDX-License-Identifier: MIT
#include "views/forwarded_press.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

namespace tarnwick {

ForwardedPress::ForwardedPress(QWidget& target, const QMouseEvent& press)
    : QObject(&target)
    , m_target(target)
{
    send(press);
    qApp->installEventFilter(this);
}

bool ForwardedPress::eventFilter(QObject* watched, QEvent* event)
{
    // On its way into the window: none of our widgets may be meant to get it.
    if (event->type() != QEvent::MouseButtonRelease || !watched->isWindowType())
        return false;
    qApp->removeEventFilter(this);
    deleteLater();
    send(*static_cast<QMouseEvent*>(event));
    return true;
}

void ForwardedPress::send(const QMouseEvent& event)
{
    const QPointF position = m_target.mapFromGlobal(event.globalPosition());
    QMouseEvent forwarded(event.type() == QEvent::MouseButtonRelease ? QEvent::MouseButtonRelease
                                                                     : QEvent::MouseButtonPress,
                          position, event.globalPosition(), event.button(), event.buttons(),
                          event.modifiers(), event.pointingDevice());
    QCoreApplication::sendEvent(&m_target, &forwarded);
}

} // namespace tarnwick
