// SPDX-License-Identifier: MIT
#include "platform/application_instance.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>

namespace tarnwick {

bool becomeRunningApplication(const QString& identifier)
{
    // The bus takes the name back when the process is gone, however it ended.
    QDBusConnectionInterface* bus = QDBusConnection::sessionBus().interface();
    if (!bus)
        return true;
    const auto reply = bus->registerService(identifier);
    return !reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered;
}

} // namespace tarnwick
