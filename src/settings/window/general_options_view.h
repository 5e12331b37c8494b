// SPDX-License-Identifier: MIT
#pragma once

#include "model/bound_setting.h"

#include <QWidget>

class QCheckBox;

namespace tarnwick {

class SettingsHost;

/// The tab "Settings": four check boxes bound to their preferences. A click is stored at once, and
/// a change made elsewhere is shown at once. The default of an absent preference is never written.
class GeneralOptionsView : public QWidget
{
    Q_OBJECT

public:
    GeneralOptionsView(PreferencesStore& store, SettingsHost& host, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] QCheckBox* newCheckBox(const QString& text, BoundSetting& setting);

    BoundSetting m_launchOnStartup;
    BoundSetting m_refreshOnMenuOpen;
    BoundSetting m_showCleanRepoStatus;
    BoundSetting m_onlyIcons;
};

} // namespace tarnwick
