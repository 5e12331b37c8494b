// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace tarnwick {

class RepoViewModelDelegate;

/// What the windows of the settings ask of the program that shows them. Main thread only.
class SettingsHost
{
public:
    virtual ~SettingsHost() = default;

    /// Builds a new status menu from the list and the preferences as they are now.
    virtual void rebuildMenu() = 0;
    /// Registers or unregisters the program for being started at login. Writes no preference.
    virtual void setLaunchAtLogin(bool enabled) = 0;
    /// A delegate for one record that is about to be added to the list.
    [[nodiscard]] virtual std::shared_ptr<RepoViewModelDelegate> newRecordDelegate() = 0;
};

} // namespace tarnwick
