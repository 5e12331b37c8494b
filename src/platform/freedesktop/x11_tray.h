// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <cstdint>

struct xcb_connection_t;

namespace tarnwick {

/// Follows the X11 system tray: a window that owns the default screen's tray selection. On other
/// display systems none is ever present. Listens, never polls.
class X11Tray : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit X11Tray(QObject* parent = nullptr);

    /// Asks the X server each time.
    bool isPresent() const;

Q_SIGNALS:
    void appeared();

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

    xcb_connection_t* const m_connection;
    std::uint32_t m_manager = 0;
    std::uint32_t m_selection = 0;
};

} // namespace tarnwick
