// SPDX-License-Identifier: MIT
#pragma once

#include "settings/app_list.h"

#include <QWidget>

namespace tarnwick {

class ApplicationFolder;
class BundleInfo;
class PreferencesStore;
class RepoManager;
class SettingsHost;

/// The whole content of a settings window. Several may be open at once; each reads the applications
/// anew and keeps what is typed into it to itself. Every change is stored when it is made, so that
/// however the window is closed, nothing is lost; only the menu waits for `saveAndClose()`.
class SettingsView : public QWidget
{
    Q_OBJECT

public:
    /// All but the bundle's information outlive the view. Stops the process if the packaging left
    /// out the build number.
    SettingsView(RepoManager& mgr, PreferencesStore& store, SettingsHost& host,
                 const BundleInfo& bundle, const ApplicationFolder& system,
                 const ApplicationFolder& user, QWidget* parent = nullptr);

    /// Rebuilds the status menu, then closes the key window.
    void saveAndClose();

private:
    SettingsHost& m_host;
    const AppList m_vm;
    /// Inert: no control shows it, and nothing stores it.
    bool m_autoUpdate = false;
};

} // namespace tarnwick
