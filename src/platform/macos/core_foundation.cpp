// SPDX-License-Identifier: MIT
#include "platform/macos/core_foundation.h"

#include <vector>

namespace tarnwick::cf {

namespace {

QJsonValue jsonValue(CFTypeRef object)
{
    const CFTypeID type = CFGetTypeID(object);
    if (type == CFBooleanGetTypeID())
        return CFBooleanGetValue(static_cast<CFBooleanRef>(object)) != 0;
    if (type == CFStringGetTypeID())
        return QString::fromCFString(static_cast<CFStringRef>(object));
    double number = 0;
    if (type == CFNumberGetTypeID() &&
        CFNumberGetValue(static_cast<CFNumberRef>(object), kCFNumberDoubleType, &number) != 0)
        return number;
    return QJsonValue::Null;
}

} // namespace

Pointer<CFStringRef> string(const QString& text)
{
    return Pointer<CFStringRef>(text.toCFString());
}

QJsonObject jsonObject(CFDictionaryRef dictionary)
{
    const auto count = static_cast<std::size_t>(CFDictionaryGetCount(dictionary));
    std::vector<CFTypeRef> keys(count);
    std::vector<CFTypeRef> values(count);
    CFDictionaryGetKeysAndValues(dictionary, keys.data(), values.data());
    QJsonObject object;
    for (std::size_t i = 0; i < count; ++i)
        object.insert(QString::fromCFString(static_cast<CFStringRef>(keys[i])),
                      jsonValue(values[i]));
    return object;
}

} // namespace tarnwick::cf
