// SPDX-License-Identifier: MIT
#include "platform/freedesktop/x11_active_window.h"

#include "platform/freedesktop/x11.h"

#include <QCoreApplication>

#include <utility>

namespace tarnwick {

X11ActiveWindow::X11ActiveWindow(QObject* parent)
    : ActiveWindow(parent)
    , m_connection(x11::connection())
{
    if (!m_connection)
        return;
    m_root = x11::rootWindow(m_connection);
    m_property = x11::internAtom(m_connection, "_NET_ACTIVE_WINDOW");
    const std::uint32_t active = activeWindow();
    if (exists(active))
        m_last = active;
    // Qt selects the root window's property events.
    qApp->installNativeEventFilter(this);
}

bool X11ActiveWindow::nativeEventFilter(const QByteArray& type, void* message, qintptr*)
{
    if (type != "xcb_generic_event_t")
        return false;
    const auto* const event = static_cast<const xcb_property_notify_event_t*>(message);
    if ((event->response_type & x11::withoutSentFlag) != XCB_PROPERTY_NOTIFY ||
        event->window != m_root || event->atom != m_property)
        return false;
    const std::uint32_t active = activeWindow();
    if (active == XCB_WINDOW_NONE && !exists(m_last))
        m_last = XCB_WINDOW_NONE;
    else if (active != XCB_WINDOW_NONE && std::exchange(m_last, active) != active)
        Q_EMIT changed();
    return false;
}

std::uint32_t X11ActiveWindow::activeWindow() const
{
    const x11::ReplyPointer<xcb_get_property_reply_t> reply{xcb_get_property_reply(
        m_connection,
        xcb_get_property_unchecked(m_connection, false, m_root, m_property, XCB_ATOM_WINDOW, 0, 1),
        nullptr)};
    if (!reply || reply->format != 32 || xcb_get_property_value_length(reply.get()) < 4)
        return XCB_WINDOW_NONE;
    return *static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
}

bool X11ActiveWindow::exists(std::uint32_t window) const
{
    const x11::ReplyPointer<xcb_get_window_attributes_reply_t> reply{
        xcb_get_window_attributes_reply(
            m_connection, xcb_get_window_attributes_unchecked(m_connection, window), nullptr)};
    return reply != nullptr;
}

} // namespace tarnwick
