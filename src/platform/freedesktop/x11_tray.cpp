// SPDX-License-Identifier: MIT
#include "platform/freedesktop/x11_tray.h"

#include <QByteArray>
#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace tarnwick {

namespace {

struct Free
{
    void operator()(void* reply) const { std::free(reply); }
};

template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, Free>;

xcb_atom_t internAtom(xcb_connection_t* connection, const QByteArray& name)
{
    const auto cookie = xcb_intern_atom_unchecked(
        connection, false, static_cast<std::uint16_t>(name.size()), name.constData());
    const ReplyPointer<xcb_intern_atom_reply_t> reply{
        xcb_intern_atom_reply(connection, cookie, nullptr)};
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

int defaultScreenNumber()
{
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) != 0)
        std::free(host);
    return screen;
}

} // namespace

X11Tray::X11Tray(QObject* parent)
    : QObject(parent)
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || !x11->connection()) // the offscreen platform offers the one without the other
        return;
    m_connection = x11->connection();
    m_manager = internAtom(m_connection, "MANAGER");
    m_selection =
        internAtom(m_connection, "_NET_SYSTEM_TRAY_S" + QByteArray::number(defaultScreenNumber()));
    // Qt selects the root window's structure events, which is what a new tray announces itself to.
    qGuiApp->installNativeEventFilter(this);
}

bool X11Tray::isPresent() const
{
    if (!m_connection)
        return false;
    const auto cookie = xcb_get_selection_owner_unchecked(m_connection, m_selection);
    const ReplyPointer<xcb_get_selection_owner_reply_t> reply{
        xcb_get_selection_owner_reply(m_connection, cookie, nullptr)};
    return reply && reply->owner != XCB_WINDOW_NONE;
}

bool X11Tray::nativeEventFilter(const QByteArray& type, void* message, qintptr*)
{
    if (type != "xcb_generic_event_t")
        return false;
    const auto* event = static_cast<const xcb_client_message_event_t*>(message);
    constexpr int withoutSentFlag = 0x7f;
    if ((event->response_type & withoutSentFlag) == XCB_CLIENT_MESSAGE &&
        event->type == m_manager && event->data.data32[1] == m_selection)
        Q_EMIT appeared();
    return false;
}

} // namespace tarnwick
