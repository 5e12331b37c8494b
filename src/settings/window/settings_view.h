// SPDX-License-Identifier: MIT
#pragma once

#include "settings/window/app_list.h"

#include <QWidget>

namespace tarnwick {

class ApplicationFolder;
class BundleInfo;
class PreferencesStore;
class RepoManager;
class SettingsHost;

/// The content of a settings window. Several may be open at once. Every change is stored at once;
/// only the menu is not rebuilt before `saveAndClose()`.
class SettingsView : public QWidget
{
    Q_OBJECT

public:
    /// All but `bundle` outlive the view. Reads the application folders. Stops the process if
    /// `bundle` has no build number.
    SettingsView(RepoManager& mgr, PreferencesStore& store, SettingsHost& host,
                 const BundleInfo& bundle, const ApplicationFolder& system,
                 const ApplicationFolder& user, QWidget* parent = nullptr);

    /// Rebuilds the status menu, then closes the key window.
    void saveAndClose();

private:
    SettingsHost& m_host;
    const AppList m_vm;
    /// Inert: neither shown nor stored.
    bool m_autoUpdate = false;
};

} // namespace tarnwick
