// SPDX-License-Identifier: MIT
#include "platform/freedesktop/x11.h"

#include <QGuiApplication>

namespace tarnwick::x11 {

xcb_connection_t* connection()
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr; // the offscreen platform has the one, not the other
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

xcb_window_t rootWindow(xcb_connection_t* connection)
{
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int i = defaultScreenNumber(); i > 0 && screens.rem > 1; --i)
        xcb_screen_next(&screens);
    return screens.data->root;
}

xcb_atom_t internAtom(xcb_connection_t* connection, const QByteArray& name)
{
    const auto cookie = xcb_intern_atom_unchecked(
        connection, false, static_cast<std::uint16_t>(name.size()), name.constData());
    const ReplyPointer<xcb_intern_atom_reply_t> reply{
        xcb_intern_atom_reply(connection, cookie, nullptr)};
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace tarnwick::x11
