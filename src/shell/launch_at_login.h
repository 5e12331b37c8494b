// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tarnwick {

class BundleInfo;
class LoginServices;
class PreferencesStore;

/// Sees to it that the program is started when the user logs in: by a small launcher helper, which
/// is what the desktop knows about, and which is told to quit once the program is up.
///
/// A request that the desktop refuses is made once more and then given up without a word to the
/// user; the preference "launchOnStartup" is never changed on that account. Main thread only.
class LaunchAtLogin
{
public:
    /// What it is given by reference outlives it.
    LaunchAtLogin(LoginServices& services, PreferencesStore& store, const BundleInfo& bundle,
                  QString helperIdentifier);

    /// Once, when the program has come up. Stops the process if there is a helper to be told, but
    /// no identifier of the program to tell it.
    void startLaunchAtLogin();
    /// What the user has just switched to; the preference is stored by the switch. Prints what the
    /// desktop answered.
    void setLaunchAtLogin(bool enabled);

private:
    LoginServices& m_services;
    PreferencesStore& m_store;
    const BundleInfo& m_bundle;
    const QString m_helperIdentifier;
};

} // namespace tarnwick
