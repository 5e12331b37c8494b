// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QWidget>

#include <functional>

namespace tarnwick {

class PreferencesStore;

/// One application with its icon and the switch that offers it in the actions panels.
class SiteRow : public QWidget
{
    Q_OBJECT

public:
    /// Asks for the icon when the row is first painted: most rows of a long list never are.
    using IconSource = std::function<QIcon(const QString& site)>;

    /// The store outlives the row.
    SiteRow(bool state, const QString& site, PreferencesStore& store, const IconSource& icon,
            QWidget* parent = nullptr);

private:
    void saveSwitch(bool state);

    const QString m_site;
    PreferencesStore& m_store;
};

} // namespace tarnwick
