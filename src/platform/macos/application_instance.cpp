// SPDX-License-Identifier: MIT
#include "platform/macos/application_instance.h"

#include <CoreServices/CoreServices.h>

namespace tarnwick {

namespace {

constexpr CFTimeInterval sendTimeoutSeconds = 2;

void activate(void* instance)
{
    Q_EMIT static_cast<ApplicationInstance*>(instance)->activated();
}

CFDataRef onMessage(CFMessagePortRef, SInt32, CFDataRef, void* instance)
{
    activate(instance);
    return nullptr;
}

OSErr onReopen(const AppleEvent*, AppleEvent*, SRefCon instance)
{
    activate(instance);
    return noErr;
}

} // namespace

MacApplicationInstance::MacApplicationInstance(const QString& identifier)
    : m_portName(cf::string(identifier + QStringLiteral(".instance")))
{}

MacApplicationInstance::~MacApplicationInstance()
{
    AERemoveEventHandler(kCoreEventClass, kAEReopenApplication, onReopen, false);
    if (m_port)
        CFMessagePortInvalidate(m_port.get());
}

bool MacApplicationInstance::becomeOnlyCopy()
{
    const cf::Pointer<CFMessagePortRef> other(CFMessagePortCreateRemote(nullptr, m_portName.get()));
    if (!other) {
        listen();
        return true;
    }
    CFMessagePortSendRequest(other.get(), 0, nullptr, sendTimeoutSeconds, 0, nullptr, nullptr);
    return false;
}

void MacApplicationInstance::listen()
{
    CFMessagePortContext context{0, this, nullptr, nullptr, nullptr};
    m_port.reset(CFMessagePortCreateLocal(nullptr, m_portName.get(), onMessage, &context, nullptr));
    if (m_port) {
        const cf::Pointer<CFRunLoopSourceRef> source(
            CFMessagePortCreateRunLoopSource(nullptr, m_port.get(), 0));
        CFRunLoopAddSource(CFRunLoopGetMain(), source.get(), kCFRunLoopCommonModes);
    }
    // Only once the application object has installed its own handlers, which would replace ours.
    QMetaObject::invokeMethod(
        this,
        [this] {
            AEInstallEventHandler(kCoreEventClass, kAEReopenApplication, onReopen, this, false);
        },
        Qt::QueuedConnection);
}

std::unique_ptr<ApplicationInstance> applicationInstance(const QString& identifier)
{
    return std::make_unique<MacApplicationInstance>(identifier);
}

} // namespace tarnwick
