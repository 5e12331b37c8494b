// SPDX-License-Identifier: MIT
#include "platform/macos/user_defaults.h"

#include "platform/changed_values.h"
#include "platform/macos/core_foundation.h"

namespace tarnwick {

namespace {

void write(const QString& key, const QJsonValue& value)
{
    const auto name = cf::string(key);
    const auto application = kCFPreferencesCurrentApplication;
    if (value.isString())
        CFPreferencesSetAppValue(name.get(), cf::string(value.toString()).get(), application);
    else if (value.isBool())
        CFPreferencesSetAppValue(name.get(), value.toBool() ? kCFBooleanTrue : kCFBooleanFalse,
                                 application);
}

} // namespace

QJsonObject UserDefaults::load()
{
    const cf::Pointer<CFDictionaryRef> values(
        CFPreferencesCopyMultiple(nullptr, kCFPreferencesCurrentApplication,
                                  kCFPreferencesCurrentUser, kCFPreferencesAnyHost));
    m_saved = values ? cf::jsonObject(values.get()) : QJsonObject();
    return m_saved;
}

bool UserDefaults::save(QJsonObject& values)
{
    const QJsonObject changed = changedValues(m_saved, values);
    for (auto value = changed.begin(); value != changed.end(); ++value)
        write(value.key(), value.value());
    if (!CFPreferencesAppSynchronize(kCFPreferencesCurrentApplication))
        return false;
    m_saved = values;
    return true;
}

} // namespace tarnwick
