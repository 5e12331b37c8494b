// SPDX-License-Identifier: MIT
#include "platform/freedesktop/x11_tray.h"

#include "platform/freedesktop/x11.h"

#include <QCoreApplication>

namespace tarnwick {

X11Tray::X11Tray(QObject* parent)
    : QObject(parent)
    , m_connection(x11::connection())
{
    if (!m_connection)
        return;
    m_manager = x11::internAtom(m_connection, "MANAGER");
    m_selection = x11::internAtom(m_connection, "_NET_SYSTEM_TRAY_S" +
                                                    QByteArray::number(x11::defaultScreenNumber()));
    // Qt selects the root window's structure events, which is what a new tray announces itself to.
    qApp->installNativeEventFilter(this);
}

bool X11Tray::isPresent() const
{
    if (!m_connection)
        return false;
    const auto cookie = xcb_get_selection_owner_unchecked(m_connection, m_selection);
    const x11::ReplyPointer<xcb_get_selection_owner_reply_t> reply{
        xcb_get_selection_owner_reply(m_connection, cookie, nullptr)};
    return reply && reply->owner != XCB_WINDOW_NONE;
}

bool X11Tray::nativeEventFilter(const QByteArray& type, void* message, qintptr*)
{
    if (type != "xcb_generic_event_t")
        return false;
    const auto* event = static_cast<const xcb_client_message_event_t*>(message);
    if ((event->response_type & x11::withoutSentFlag) == XCB_CLIENT_MESSAGE &&
        event->type == m_manager && event->data.data32[1] == m_selection)
        Q_EMIT appeared();
    return false;
}

} // namespace tarnwick
