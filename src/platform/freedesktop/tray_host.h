// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/dock_windows.h"
#include "platform/freedesktop/kde_settings.h"
#include "platform/freedesktop/status_notifier_watcher.h"
#include "platform/freedesktop/x11_tray.h"
#include "platform/tray_host.h"

#include <QTimer>

#include <chrono>

namespace tarnwick {

/// A status notifier host on the session bus or, on X11 only, a system tray.
///
/// Where both exist Qt takes the status notifier host if it is registered when Qt first asks, and
/// the tray otherwise, for good. A panel that offers both opens them one after the other, so a
/// tray alone is given a moment, longer where a host is to be expected, before it counts.
class FreedesktopTrayHost : public TrayHost
{
    Q_OBJECT

public:
    explicit FreedesktopTrayHost(QObject* parent = nullptr);

    [[nodiscard]] bool available() const override { return m_available; }
    [[nodiscard]] bool isUndecided() const override;
    [[nodiscard]] QString literalMenuText(QString text) const override;
    [[nodiscard]] QList<QRect> panelRects() const override;
    [[nodiscard]] std::optional<QColor> panelColor(const QRect& item) const override;
    [[nodiscard]] QString tintedIconName() const override;

private:
    void reevaluate();
    void acceptTrayAfter(std::chrono::milliseconds timeout);
    void acceptHost();

    StatusNotifierWatcher m_notifier;
    X11Tray m_tray;
    DockWindows m_docks;
    KdeSettings m_kde;
    QTimer m_trayTimer;
    bool m_available = false;
    /// Whether the item's menu is shown by the panel, told over the session bus, and not by Qt.
    bool m_exportsMenu = false;
};

} // namespace tarnwick
