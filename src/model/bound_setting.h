// SPDX-License-Identifier: MIT
#pragma once

#include "model/preference_keys.h"

#include <QObject>

namespace tarnwick {

class PreferencesStore;

/// One boolean preference as a view sees it: the fallback while the key is absent (which is never
/// written), a write on every change, and a signal for every write of the same key, whoever made
/// it. The store must outlive the setting.
class BoundSetting : public QObject
{
    Q_OBJECT

public:
    BoundSetting(PreferencesStore& store, BoolPreference preference, QObject* parent = nullptr);

    [[nodiscard]] bool value() const;
    void setValue(bool value);

Q_SIGNALS:
    void valueChanged(bool value);

private:
    PreferencesStore& m_store;
    const BoolPreference m_preference;
};

} // namespace tarnwick
