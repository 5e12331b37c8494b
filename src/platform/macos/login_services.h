// SPDX-License-Identifier: MIT
#pragma once

#include "platform/login_services.h"

namespace tarnwick {

/// Login items are launch agents of the user's; running applications are those that the workspace
/// knows, and notifications go to the distributed notification centre.
class MacLoginServices : public LoginServices
{
public:
    /// `loginProgram` is the absolute path of the program behind every login item, which is part of
    /// `application`, an identifier.
    MacLoginServices(QString loginProgram, QString application)
        : m_loginProgram(std::move(loginProgram))
        , m_application(std::move(application))
    {}

    [[nodiscard]] bool setLoginItemEnabled(const QString& identifier, bool enabled) override;
    [[nodiscard]] QStringList runningApplicationIdentifiers() const override;
    void postNotification(const QString& name, const QString& object) override;

private:
    const QString m_loginProgram;
    const QString m_application;
};

} // namespace tarnwick
