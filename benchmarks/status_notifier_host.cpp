// SPDX-License-Identifier: MIT
#include "status_notifier_host.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

namespace tarnwick::bench {

namespace {

QDBusMessage itemCall(const QString& item, const QString& interface, const QString& method)
{
    return QDBusMessage::createMethodCall(item, QStringLiteral("/StatusNotifierItem"), interface,
                                          method);
}

} // namespace

StatusNotifierHost::StatusNotifierHost()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                       QDBusConnection::ExportAllProperties |
                           QDBusConnection::ExportScriptableSlots);
    bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
}

void StatusNotifierHost::activate()
{
    QDBusMessage click =
        itemCall(m_item, QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("Activate"));
    click << 600 << 0;
    QDBusConnection::sessionBus().asyncCall(click);
}

void StatusNotifierHost::RegisterStatusNotifierItem(const QString& service)
{
    m_item = service;
    QDBusMessage request =
        itemCall(m_item, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    request << QStringLiteral("org.kde.StatusNotifierItem") << QStringLiteral("IconPixmap");
    auto* const call =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(request), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        Q_EMIT itemShown();
    });
}

} // namespace tarnwick::bench
