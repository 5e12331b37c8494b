// SPDX-License-Identifier: MIT
#pragma once

#include "platform/preferences_storage.h"

namespace tarnwick {

/// The user defaults of the application's own domain, which is named by its bundle identifier and
/// which `defaults read` shows. Only changed booleans and strings are written.
class UserDefaults : public PreferencesStorage
{
public:
    [[nodiscard]] QJsonObject load() override;
    [[nodiscard]] bool save(QJsonObject& values) override;

private:
    QJsonObject m_saved;
};

} // namespace tarnwick
