// SPDX-License-Identifier: MIT
#pragma once

#include "platform/login_services.h"

namespace tarnwick::test {

struct RecordingLoginServices : LoginServices
{
    [[nodiscard]] bool setLoginItemEnabled(const QString& identifier, bool enabled) override
    {
        calls += (enabled ? u"register "_qs : u"unregister "_qs) + identifier;
        return answers.isEmpty() || answers.takeFirst();
    }
    [[nodiscard]] QStringList runningApplicationIdentifiers() const override { return running; }
    void postNotification(const QString& name, const QString& object) override
    {
        calls += u"post "_qs + name + u' ' + object;
    }

    QStringList running;
    /// To the requests in their order; yes when they have run out.
    QList<bool> answers;
    QStringList calls;
};

} // namespace tarnwick::test
