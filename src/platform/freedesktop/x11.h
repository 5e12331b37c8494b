// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace tarnwick::x11 {

/// Of an event's `response_type`: the kind of event.
constexpr int withoutSentFlag = 0x7f;

struct Free
{
    void operator()(void* reply) const { std::free(reply); }
};

/// What xcb answers has to be freed; null where the request failed.
template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, Free>;

/// Qt's own connection to the X server; null on other display systems.
[[nodiscard]] xcb_connection_t* connection();

/// The screen that programs get from the display's name: one for all monitors, but for rare
/// set-ups.
[[nodiscard]] int defaultScreenNumber();
[[nodiscard]] xcb_window_t rootWindow(xcb_connection_t* connection);

/// Waits for the server.
[[nodiscard]] xcb_atom_t internAtom(xcb_connection_t* connection, const QByteArray& name);

} // namespace tarnwick::x11
