// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tarnwick {

class AppList;
class ApplicationFolder;
class PreferencesStore;

/// The tab that lists the installed applications, each with its switch.
class ApplicationsView : public QWidget
{
    Q_OBJECT

public:
    /// All but the list outlive the view.
    ApplicationsView(const AppList& vm, PreferencesStore& store, const ApplicationFolder& system,
                     const ApplicationFolder& user, QWidget* parent = nullptr);
};

} // namespace tarnwick
