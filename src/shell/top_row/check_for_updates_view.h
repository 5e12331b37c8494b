// SPDX-License-Identifier: MIT
#pragma once

#include "shell/top_row/glyph_button.h"

#include <QObject>

namespace tarnwick {

class Updater;

/// Whether the updater can check now, republished from the moment it is made.
class CheckForUpdatesViewModel : public QObject
{
    Q_OBJECT

public:
    /// Follows the updater as long as both live.
    explicit CheckForUpdatesViewModel(Updater& updater, QObject* parent = nullptr);

    [[nodiscard]] bool canCheckForUpdates() const { return m_canCheckForUpdates; }

Q_SIGNALS:
    void canCheckForUpdatesChanged(bool canCheckForUpdates);

private:
    void setCanCheckForUpdates(bool canCheckForUpdates);

    bool m_canCheckForUpdates = false;
};

/// The button that starts an update check; enabled while one may start.
class CheckForUpdatesView : public GlyphButton
{
    Q_OBJECT

public:
    /// The updater outlives the view.
    explicit CheckForUpdatesView(Updater& updater, QWidget* parent = nullptr);

private:
    CheckForUpdatesViewModel m_checkForUpdatesViewModel;
};

} // namespace tarnwick
