// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace tarnwick {

class RepoViewModelDelegate;

/// The operations that settings and link windows need from the shell. Main thread only.
class SettingsHost
{
public:
    virtual ~SettingsHost() = default;

    /// Builds a new status menu from the current list and preferences.
    virtual void rebuildMenu() = 0;
    /// Registers or unregisters the program as a login item. Writes no preference.
    virtual void setLaunchAtLogin(bool enabled) = 0;
    /// A delegate for one record that is about to be added to the list.
    [[nodiscard]] virtual std::shared_ptr<RepoViewModelDelegate> newRecordDelegate() = 0;
};

} // namespace tarnwick
