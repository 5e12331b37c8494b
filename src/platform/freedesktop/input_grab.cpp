// SPDX-License-Identifier: MIT
#include "platform/input_grab.h"

#include "platform/freedesktop/x11.h"

#include <QGuiApplication>

namespace tarnwick {

bool popupsHoldInput()
{
    const QString platform = QGuiApplication::platformName();
    const bool isXWayland = platform == u"xcb" && qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    return !isXWayland && !platform.startsWith(u"wayland");
}

bool windowsCanBePlaced()
{
    return popupsHoldInput(); // the same compositors place windows themselves
}

bool inputIsFree()
{
    xcb_connection_t* const connection = x11::connection();
    if (!connection || !popupsHoldInput())
        return true;
    const xcb_window_t root = x11::rootWindow(connection);
    const auto askedPointer = xcb_grab_pointer_unchecked(
        connection, false, root, 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE,
        XCB_CURSOR_NONE, XCB_CURRENT_TIME);
    const auto askedKeyboard = xcb_grab_keyboard_unchecked(
        connection, false, root, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const x11::ReplyPointer<xcb_grab_pointer_reply_t> pointer{
        xcb_grab_pointer_reply(connection, askedPointer, nullptr)};
    const x11::ReplyPointer<xcb_grab_keyboard_reply_t> keyboard{
        xcb_grab_keyboard_reply(connection, askedKeyboard, nullptr)};
    xcb_ungrab_pointer(connection, XCB_CURRENT_TIME);
    xcb_ungrab_keyboard(connection, XCB_CURRENT_TIME);
    return pointer && pointer->status == XCB_GRAB_STATUS_SUCCESS && keyboard &&
           keyboard->status == XCB_GRAB_STATUS_SUCCESS;
}

} // namespace tarnwick
