// SPDX-License-Identifier: MIT
#include "platform/freedesktop/status_notifier_watcher.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace tarnwick {

namespace {

QString service()
{
    return QStringLiteral("org.kde.StatusNotifierWatcher");
}
QString path()
{
    return QStringLiteral("/StatusNotifierWatcher");
}

} // namespace

StatusNotifierWatcher::StatusNotifierWatcher(QObject* parent)
    : QObject(parent)
    , m_owner(service(), QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForOwnerChange)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        m_state = State::NoWatcher; // a call over it would never be answered
        return;
    }
    connect(&m_owner, &QDBusServiceWatcher::serviceOwnerChanged, this,
            &StatusNotifierWatcher::queryState);
    for (const QString& change : {QStringLiteral("StatusNotifierHostRegistered"),
                                  QStringLiteral("StatusNotifierHostUnregistered")})
        bus.connect(service(), path(), service(), change, this, SLOT(queryState()));
    queryState();
}

void StatusNotifierWatcher::queryState()
{
    QDBusMessage request = QDBusMessage::createMethodCall(
        service(), path(), QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    request << service() << QStringLiteral("IsStatusNotifierHostRegistered");
    request.setAutoStartService(false);

    auto* call =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(request), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *call;
        if (reply.isError())
            setState(State::NoWatcher);
        else
            setState(reply.value().variant().toBool() ? State::HostRegistered : State::NoHost);
    });
}

void StatusNotifierWatcher::setState(State state)
{
    if (m_state == state)
        return;
    m_state = state;
    Q_EMIT stateChanged();
}

} // namespace tarnwick
