// SPDX-License-Identifier: MIT
#include "platform/freedesktop/login_services.h"

#include "platform/freedesktop/autostart_entry.h"
#include "platform/freedesktop/notification_signal.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QStandardPaths>

namespace tarnwick {

FreedesktopLoginServices::FreedesktopLoginServices(QString loginProgram)
    : m_loginProgram(std::move(loginProgram))
{}

bool FreedesktopLoginServices::setLoginItemEnabled(const QString& identifier, bool enabled)
{
    const LoginItemFile entry =
        autostartEntry(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                           QStringLiteral("/autostart"),
                       identifier, m_loginProgram);
    return enabled ? entry.write() : entry.remove();
}

QStringList FreedesktopLoginServices::runningApplicationIdentifiers() const
{
    QDBusConnectionInterface* bus = QDBusConnection::sessionBus().interface();
    return bus ? bus->registeredServiceNames().value() : QStringList();
}

void FreedesktopLoginServices::postNotification(const QString& name, const QString& object)
{
    QDBusMessage signal = QDBusMessage::createSignal(
        notificationSignal::path, notificationSignal::interface, notificationSignal::member);
    signal << name << object;
    QDBusConnection::sessionBus().send(signal);
}

} // namespace tarnwick
