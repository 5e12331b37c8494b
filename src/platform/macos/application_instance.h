// SPDX-License-Identifier: MIT
#pragma once

#include "platform/application_instance.h"
#include "platform/macos/core_foundation.h"

namespace tarnwick {

/// The one copy owns a message port of the application's name; a message to it, and the system's
/// event for starting an application that runs already, bring it forward.
class MacApplicationInstance : public ApplicationInstance
{
public:
    explicit MacApplicationInstance(const QString& identifier);
    ~MacApplicationInstance() override;

    [[nodiscard]] bool becomeOnlyCopy() override;
    [[nodiscard]] bool isReachable() const override { return true; }

private:
    void listen();

    const cf::Pointer<CFStringRef> m_portName;
    cf::Pointer<CFMessagePortRef> m_port;
};

} // namespace tarnwick
