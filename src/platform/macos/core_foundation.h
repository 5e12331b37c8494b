// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>

#include <CoreFoundation/CoreFoundation.h>
#include <memory>
#include <type_traits>

namespace tarnwick::cf {

struct Release
{
    void operator()(CFTypeRef object) const { CFRelease(object); }
};

/// Owns what a function with "Create" or "Copy" in its name returned.
template <typename Ref>
using Pointer = std::unique_ptr<std::remove_pointer_t<Ref>, Release>;

[[nodiscard]] Pointer<CFStringRef> string(const QString& text);

/// Of a dictionary whose keys are strings: booleans, numbers and strings as they are, and null for
/// what is of any other type.
[[nodiscard]] QJsonObject jsonObject(CFDictionaryRef dictionary);

} // namespace tarnwick::cf
