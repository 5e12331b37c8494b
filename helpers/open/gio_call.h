// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

namespace tarnwick {

/// Waits for an asynchronous call of GIO, which `start` begins with the callback and the data that
/// it is given. The caller owns the result. Only the asynchronous calls wait for an application
/// that is started over the bus, and the bus forgets a request whose sender has gone.
template <typename Start>
[[nodiscard]] GAsyncResult* awaited(const Start& start)
{
    GAsyncResult* result = nullptr;
    const GAsyncReadyCallback keep = [](GObject*, GAsyncResult* answer, gpointer kept) {
        *static_cast<GAsyncResult**>(kept) = G_ASYNC_RESULT(g_object_ref(answer));
    };
    start(keep, &result);
    while (!result)
        g_main_context_iteration(nullptr, TRUE);
    return result;
}

} // namespace tarnwick
