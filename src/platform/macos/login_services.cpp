// SPDX-License-Identifier: MIT
#include "platform/macos/login_services.h"

#include "platform/macos/core_foundation.h"
#include "platform/macos/launch_agent.h"
#include "platform/macos/workspace.h"

#include <QDir>

namespace tarnwick {

bool MacLoginServices::setLoginItemEnabled(const QString& identifier, bool enabled)
{
    const LoginItemFile agent =
        launchAgent(QDir::homePath() + QStringLiteral("/Library/LaunchAgents"), identifier,
                    m_loginProgram, m_application);
    return enabled ? agent.write() : agent.remove();
}

QStringList MacLoginServices::runningApplicationIdentifiers() const
{
    return workspace::runningApplicationIdentifiers();
}

void MacLoginServices::postNotification(const QString& name, const QString& object)
{
    CFNotificationCenterPostNotification(CFNotificationCenterGetDistributedCenter(),
                                         cf::string(name).get(), cf::string(object).get(), nullptr,
                                         true);
}

} // namespace tarnwick
