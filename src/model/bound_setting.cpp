// SPDX-License-Identifier: MIT
#include "model/bound_setting.h"

#include "model/preferences_store.h"

namespace tarnwick {

BoundSetting::BoundSetting(PreferencesStore& store, BoolPreference preference, QObject* parent)
    : QObject(parent)
    , m_store(store)
    , m_preference(std::move(preference))
{
    connect(&m_store, &PreferencesStore::valueWritten, this, [this](const QString& key) {
        if (key == m_preference.key)
            Q_EMIT valueChanged(value());
    });
}

bool BoundSetting::value() const
{
    return m_store.boolForKey(m_preference.key, m_preference.fallback);
}

void BoundSetting::setValue(bool value)
{
    m_store.setBool(value, m_preference.key);
}

} // namespace tarnwick
