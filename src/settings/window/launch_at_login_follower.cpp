// SPDX-License-Identifier: MIT
#include "settings/window/launch_at_login_follower.h"

#include "settings/settings_host.h"

#include <utility>

namespace tarnwick {

std::shared_ptr<LaunchAtLoginFollower> LaunchAtLoginFollower::shared(PreferencesStore& store,
                                                                     SettingsHost& host)
{
    static std::weak_ptr<LaunchAtLoginFollower> current;
    auto follower = current.lock();
    if (!follower) {
        follower = std::make_shared<LaunchAtLoginFollower>(store, host);
        current = follower;
    }
    return follower;
}

LaunchAtLoginFollower::LaunchAtLoginFollower(PreferencesStore& store, SettingsHost& host)
    : m_launchOnStartup(store, preferences::launchOnStartup)
    , m_value(m_launchOnStartup.value())
{
    connect(&m_launchOnStartup, &BoundSetting::valueChanged, this, [this, &host](bool value) {
        // The store tells of every write, equal values included.
        if (std::exchange(m_value, value) != value)
            host.setLaunchAtLogin(value);
    });
}

} // namespace tarnwick
