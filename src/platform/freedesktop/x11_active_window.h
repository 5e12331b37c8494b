// SPDX-License-Identifier: MIT
#pragma once

#include "platform/active_window.h"

#include <QAbstractNativeEventFilter>

#include <cstdint>

struct xcb_connection_t;

namespace tarnwick {

/// Follows _NET_ACTIVE_WINDOW, which X11 window managers set.
class X11ActiveWindow : public ActiveWindow, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit X11ActiveWindow(QObject* parent = nullptr);

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    /// None while the keyboard is with no window, which it is between two.
    [[nodiscard]] std::uint32_t activeWindow() const;

    /// The property may name a window that has gone, whose identifier a later one can get.
    [[nodiscard]] bool exists(std::uint32_t window) const;

    xcb_connection_t* const m_connection;
    std::uint32_t m_root = 0;
    std::uint32_t m_property = 0;
    std::uint32_t m_last = 0;
};

} // namespace tarnwick
