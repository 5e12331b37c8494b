// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/kde_settings.h"

#include <QWindow>

namespace tarnwick {

/// Keeps the application's palette with the desktop's when that goes from light to dark or back,
/// and that of tooltips with it, which Qt leaves light. On KDE it follows every change of colours,
/// which Qt 6.4 reads at the start only.
///
/// Qt 6.4 announces such a change on GTK desktops, but goes on using the palette that it made at
/// the start; the style knows the new one. It announces it to windows only, so this is a window
/// that is never shown.
class PaletteFollower : public QWindow
{
    Q_OBJECT

public:
    PaletteFollower();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static void follow();
    static void followKde();
    static void colorToolTips();

    KdeSettings m_kde;
};

} // namespace tarnwick
