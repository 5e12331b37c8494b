// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tarnwick {

class AppList;
class ApplicationFolder;
class PreferencesStore;

/// The tab "Applications": one `SiteRow` for each installed application.
class ApplicationsView : public QWidget
{
    Q_OBJECT

public:
    /// All but the list outlive the view.
    ApplicationsView(const AppList& vm, PreferencesStore& store, const ApplicationFolder& system,
                     const ApplicationFolder& user, QWidget* parent = nullptr);
};

/// An application's icon and the switch that offers it in the actions panels.
class SiteRow : public QWidget
{
    Q_OBJECT

public:
    /// Store and folders outlive the row. The icon is loaded when the row is first painted.
    SiteRow(bool state, const QString& site, PreferencesStore& store,
            const ApplicationFolder& system, const ApplicationFolder& user,
            QWidget* parent = nullptr);

private:
    void saveSwitch(bool state);

    const QString m_site;
    PreferencesStore& m_store;
};

} // namespace tarnwick
