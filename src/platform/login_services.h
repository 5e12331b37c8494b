// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace tarnwick {

/// What starting at login asks of the desktop. Applications go by their identifiers in reverse-DNS
/// form. Every call is answered at once; main thread only.
class LoginServices
{
public:
    virtual ~LoginServices() = default;

    /// Has the desktop start this application at each login, or no longer. Asking for what is so
    /// already is no failure. False means that the desktop did not take it.
    [[nodiscard]] virtual bool setLoginItemEnabled(const QString& identifier, bool enabled) = 0;
    /// The applications of this user that run now, once per copy, among other names; those without
    /// an identifier are left out. Empty where nobody knows.
    [[nodiscard]] virtual QStringList runningApplicationIdentifiers() const = 0;
    /// Tells every program of this user that listens, and waits for none. Lost without a listener.
    virtual void postNotification(const QString& name, const QString& object) = 0;
};

} // namespace tarnwick
