// SPDX-License-Identifier: MIT
#include "platform/freedesktop/dock_windows.h"

#include "platform/freedesktop/x11.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <iterator>
#include <span>

namespace tarnwick {

namespace {

using x11::ReplyPointer;

constexpr std::uint32_t maxWindows = 4096;
constexpr std::uint32_t maxCoordinate = 0xffff;

/// A property that is a list of 32-bit numbers, as window managers' are.
class Numbers
{
public:
    Numbers(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property, xcb_atom_t type)
        : m_reply(xcb_get_property_reply(
              connection,
              xcb_get_property_unchecked(connection, false, window, property, type, 0, maxWindows),
              nullptr))
    {}

    [[nodiscard]] std::span<const std::uint32_t> values() const
    {
        if (!m_reply || m_reply->format != 32)
            return {};
        const auto size = static_cast<std::size_t>(xcb_get_property_value_length(m_reply.get()));
        return {static_cast<const std::uint32_t*>(xcb_get_property_value(m_reply.get())),
                size / sizeof(std::uint32_t)};
    }

private:
    ReplyPointer<xcb_get_property_reply_t> m_reply;
};

/// The windows within another one that are to be seen.
QList<xcb_window_t> visibleChildren(xcb_connection_t* connection, xcb_window_t window)
{
    const ReplyPointer<xcb_query_tree_reply_t> tree{
        xcb_query_tree_reply(connection, xcb_query_tree_unchecked(connection, window), nullptr)};
    if (!tree)
        return {};
    const std::span children(xcb_query_tree_children(tree.get()),
                             static_cast<std::size_t>(xcb_query_tree_children_length(tree.get())));
    QList<xcb_window_t> visible;
    std::ranges::copy_if(children, std::back_inserter(visible), [connection](xcb_window_t child) {
        const ReplyPointer<xcb_get_window_attributes_reply_t> attributes{
            xcb_get_window_attributes_reply(
                connection, xcb_get_window_attributes_unchecked(connection, child), nullptr)};
        return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
    });
    return visible;
}

/// On the root window; empty if the window is gone.
QRect geometryOf(xcb_connection_t* connection, xcb_window_t window, xcb_window_t root)
{
    const auto askedSize = xcb_get_geometry_unchecked(connection, window);
    const auto askedPlace = xcb_translate_coordinates_unchecked(connection, window, root, 0, 0);
    const ReplyPointer<xcb_get_geometry_reply_t> size{
        xcb_get_geometry_reply(connection, askedSize, nullptr)};
    const ReplyPointer<xcb_translate_coordinates_reply_t> place{
        xcb_translate_coordinates_reply(connection, askedPlace, nullptr)};
    return size && place ? QRect(place->dst_x, place->dst_y, size->width, size->height) : QRect();
}

/// Of _NET_WM_STRUT_PARTIAL: the widths of the strips at the left, right, top and bottom edge, and
/// in the same order where each starts and ends along its edge.
QList<QRect> strips(std::span<const std::uint32_t> strut, QSize root)
{
    if (strut.size() < 12)
        return {};
    std::array<int, 12> v{};
    std::ranges::transform(strut.first(v.size()), v.begin(), [](std::uint32_t value) {
        return static_cast<int>(std::min(value, maxCoordinate));
    });
    return {QRect(QPoint(0, v[4]), QPoint(v[0] - 1, v[5])),
            QRect(QPoint(root.width() - v[1], v[6]), QPoint(root.width() - 1, v[7])),
            QRect(QPoint(v[8], 0), QPoint(v[9], v[2] - 1)),
            QRect(QPoint(v[10], root.height() - v[3]), QPoint(v[11], root.height() - 1))};
}

} // namespace

DockWindows::DockWindows()
    : m_connection(x11::connection())
{
    if (m_connection)
        qApp->installNativeEventFilter(this);
}

QList<DockWindow> DockWindows::find() const
{
    if (!m_connection)
        return {};
    const auto atom = [this](const char* name) { return x11::internAtom(m_connection, name); };
    const xcb_atom_t typeProperty = atom("_NET_WM_WINDOW_TYPE");
    const xcb_atom_t dock = atom("_NET_WM_WINDOW_TYPE_DOCK");
    const xcb_atom_t strutProperty = atom("_NET_WM_STRUT_PARTIAL");
    const xcb_window_t root = x11::rootWindow(m_connection);
    const QSize rootSize = geometryOf(m_connection, root, root).size();

    QList<DockWindow> docks;
    m_followed.clear();
    const auto addIfDock = [&](xcb_window_t window) {
        const Numbers types(m_connection, window, typeProperty, XCB_ATOM_ATOM);
        if (!std::ranges::count(types.values(), dock))
            return;
        const Numbers strut(m_connection, window, strutProperty, XCB_ATOM_CARDINAL);
        docks.append({geometryOf(m_connection, window, root), strips(strut.values(), rootSize)});
        m_followed.append(window);
        const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, window, XCB_CW_EVENT_MASK, &events);
    };
    const Numbers windows(m_connection, root, atom("_NET_CLIENT_LIST_STACKING"), XCB_ATOM_WINDOW);
    std::ranges::for_each(windows.values(), addIfDock);
    if (docks.isEmpty()) { // i3 leaves its bar out, and puts a frame around it
        for (const xcb_window_t frame : visibleChildren(m_connection, root))
            std::ranges::for_each(visibleChildren(m_connection, frame), addIfDock);
    }
    return docks;
}

bool DockWindows::nativeEventFilter(const QByteArray& type, void* message, qintptr*)
{
    if (type != "xcb_generic_event_t")
        return false;
    const auto* const event = static_cast<const xcb_configure_notify_event_t*>(message);
    const int kind = event->response_type & x11::withoutSentFlag;
    if ((kind == XCB_CONFIGURE_NOTIFY || kind == XCB_MAP_NOTIFY) &&
        m_followed.contains(event->window))
        Q_EMIT changed();
    return false;
}

} // namespace tarnwick
