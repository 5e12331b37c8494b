// SPDX-License-Identifier: MIT
#pragma once

#include "platform/login_services.h"

namespace tarnwick {

/// Login items are entries in the user's autostart folder; an application runs while somebody owns
/// its identifier on the session bus, and notifications are signals there. Without a session bus
/// no application runs and a notification reaches nobody.
class FreedesktopLoginServices : public LoginServices
{
public:
    /// `loginProgram` is the absolute path of the program behind every login item.
    explicit FreedesktopLoginServices(QString loginProgram);

    [[nodiscard]] bool setLoginItemEnabled(const QString& identifier, bool enabled) override;
    [[nodiscard]] QStringList runningApplicationIdentifiers() const override;
    void postNotification(const QString& name, const QString& object) override;

private:
    QString m_loginProgram;
};

} // namespace tarnwick
