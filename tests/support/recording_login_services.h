// SPDX-License-Identifier: MIT
#pragma once

#include "platform/login_services.h"
#include "support/table.h"

namespace tarnwick::test {

struct RecordingLoginServices : LoginServices
{
    [[nodiscard]] bool setLoginItemEnabled(const QString& identifier, bool enabled) override
    {
        calls += (enabled ? u"register "_s : u"unregister "_s) + identifier;
        return calls.size() > refusals;
    }
    [[nodiscard]] QStringList runningApplicationIdentifiers() const override { return running; }
    void postNotification(const QString& name, const QString& object) override
    {
        calls += u"post "_s + name + u' ' + object;
    }

    QStringList running;
    int refusals = 0;
    QStringList calls;
};

} // namespace tarnwick::test
