// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>

namespace tarnwick {

/// Where the preferences are kept between runs: flat keys with values of JSON's types. Never called
/// by two threads at once.
class PreferencesStorage
{
public:
    virtual ~PreferencesStorage() = default;

    /// What is there; called once, before anything is saved. Empty where nothing can be read.
    [[nodiscard]] virtual QJsonObject load() = 0;
    /// Takes all values, the unchanged ones included, and returns when they are on the disk;
    /// `values` is then what is there, with what others have changed in the meantime. False if that
    /// failed and may succeed another time.
    [[nodiscard]] virtual bool save(QJsonObject& values) = 0;
};

} // namespace tarnwick
