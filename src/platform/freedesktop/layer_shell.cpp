// SPDX-License-Identifier: MIT
#include "platform/freedesktop/layer_shell.h"

#include <QGuiApplication>

#include <cstring>
#include <memory>
#include <wayland-client.h>

namespace tarnwick {

namespace {

void note(void* found, wl_registry* /*registry*/, std::uint32_t /*name*/, const char* interface,
          std::uint32_t /*version*/)
{
    if (std::strcmp(interface, "zwlr_layer_shell_v1") == 0)
        *static_cast<bool*>(found) = true;
}

void forget(void* /*found*/, wl_registry* /*registry*/, std::uint32_t /*name*/) {}

bool compositorOffersIt()
{
    // Qt tells nobody what its own connection offers.
    const std::unique_ptr<wl_display, decltype(&wl_display_disconnect)> display(
        wl_display_connect(nullptr), &wl_display_disconnect);
    if (!display)
        return false;
    const std::unique_ptr<wl_registry, decltype(&wl_registry_destroy)> registry(
        wl_display_get_registry(display.get()), &wl_registry_destroy);
    constexpr wl_registry_listener listener{&note, &forget};
    bool found = false;
    wl_registry_add_listener(registry.get(), &listener, &found);
    wl_display_roundtrip(display.get());
    return found;
}

} // namespace

bool hasLayerShell()
{
    static const bool found =
        QGuiApplication::platformName().startsWith(u"wayland") && compositorOffersIt();
    return found;
}

} // namespace tarnwick
