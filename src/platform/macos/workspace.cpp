// SPDX-License-Identifier: MIT
#include "platform/macos/workspace.h"

#include <QString>

#include <CoreFoundation/CoreFoundation.h>
#include <objc/message.h>
#include <objc/runtime.h>

namespace tarnwick::workspace {

namespace {

/// The result and the arguments have to be of the types that the method is declared with.
template <typename Result = id, typename... Arguments>
Result send(id receiver, const char* selector, Arguments... arguments)
{
    using Method = Result (*)(id, SEL, Arguments...);
    return reinterpret_cast<Method>(objc_msgSend)(receiver, sel_registerName(selector),
                                                  arguments...);
}

id sharedObject(const char* className, const char* selector)
{
    return send(reinterpret_cast<id>(objc_getClass(className)), selector);
}

} // namespace

QStringList runningApplicationIdentifiers()
{
    // NSArray and CFArray, NSString and CFString are the same objects.
    const auto* const applications = reinterpret_cast<CFArrayRef>(
        send(sharedObject("NSWorkspace", "sharedWorkspace"), "runningApplications"));
    QStringList identifiers;
    for (CFIndex i = 0; i < CFArrayGetCount(applications); ++i) {
        const id application =
            static_cast<id>(const_cast<void*>(CFArrayGetValueAtIndex(applications, i)));
        if (const id identifier = send(application, "bundleIdentifier"))
            identifiers += QString::fromCFString(reinterpret_cast<CFStringRef>(identifier));
    }
    return identifiers;
}

void activateApplication()
{
    send<void, BOOL>(sharedObject("NSApplication", "sharedApplication"),
                     "activateIgnoringOtherApps:", YES);
}

} // namespace tarnwick::workspace
