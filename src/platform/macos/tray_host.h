// SPDX-License-Identifier: MIT
#pragma once

#include "platform/tray_host.h"

namespace tarnwick {

/// The menu bar. It is always there, no window covers it, and the screens' available geometry
/// leaves it out.
class MacTrayHost : public TrayHost
{
public:
    using TrayHost::TrayHost;

    [[nodiscard]] bool available() const override { return true; }
    [[nodiscard]] ItemStyle itemStyle() const override { return ItemStyle::Template; }
    [[nodiscard]] QList<QRect> panelRects() const override { return {}; }
    [[nodiscard]] std::optional<QColor> panelColor(const QRect&) const override { return {}; }
};

} // namespace tarnwick
