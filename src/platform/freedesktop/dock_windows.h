// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QList>
#include <QObject>
#include <QRect>

#include <cstdint>

struct xcb_connection_t;

namespace tarnwick {

/// A window that says of itself that it is a panel, in pixels of the whole X11 screen.
struct DockWindow
{
    QRect geometry;
    /// The strips at the edges that it asks other windows to keep off; empty if it hides itself.
    QList<QRect> struts = {};
};

/// The docks that the X11 window manager knows; none on other display systems.
class DockWindows : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    DockWindows();

    /// Asks the X server each time, which takes a few round trips, and follows the windows found.
    [[nodiscard]] QList<DockWindow> find() const;

Q_SIGNALS:
    /// A dock that was found has moved, or shows or hides itself.
    void changed();

private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

    xcb_connection_t* const m_connection;
    mutable QList<std::uint32_t> m_followed;
};

} // namespace tarnwick
