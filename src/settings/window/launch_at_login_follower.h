// SPDX-License-Identifier: MIT
#pragma once

#include "model/bound_setting.h"

#include <memory>

namespace tarnwick {

class SettingsHost;

/// Registers the program for being started at login, or takes it out, each time the preference
/// changes. All open settings windows share one, because the machine has one registration: a change
/// reaches it once, whichever window made it and however many are open.
class LaunchAtLoginFollower : public QObject
{
    Q_OBJECT

public:
    /// The one that some window holds already, or a new one. Store and host outlive it, and are the
    /// program's only ones.
    [[nodiscard]] static std::shared_ptr<LaunchAtLoginFollower> shared(PreferencesStore& store,
                                                                       SettingsHost& host);

    LaunchAtLoginFollower(PreferencesStore& store, SettingsHost& host);

private:
    const BoundSetting m_launchOnStartup;
    bool m_value;
};

} // namespace tarnwick
