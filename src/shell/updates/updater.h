// SPDX-License-Identifier: MIT
#pragma once

#include "shell/updates/update_settings.h"

#include <QObject>

namespace tarnwick {

/// Starts checks for updates, one at a time, each in a window of its own. The window outlives this
/// object if it has to; another updater may then start a second one. Nothing is checked unasked.
/// Main thread.
class Updater : public QObject
{
    Q_OBJECT

public:
    explicit Updater(UpdateSettings settings);

    void start();

    /// False until it is started, where there is no feed at a secure address, and while the window
    /// of a check is open.
    [[nodiscard]] bool canCheckForUpdates() const;
    /// Does nothing while it cannot.
    void checkForUpdates();

Q_SIGNALS:
    void canCheckForUpdatesChanged(bool canCheckForUpdates);

private:
    void setChecking(bool isChecking);

    const UpdateSettings m_settings;
    bool m_isStarted = false;
    bool m_isChecking = false;
};

} // namespace tarnwick
