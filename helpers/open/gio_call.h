// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

namespace tarnwick {

/// Waits for an asynchronous call of GIO, which `start` begins with the given callback and data.
/// The caller owns the result. Only the asynchronous calls wait for an application that is started
/// over the bus, and the bus drops a request whose sender has disconnected.
template <typename Start>
[[nodiscard]] GAsyncResult* waitForResult(const Start& start)
{
    GAsyncResult* result = nullptr;
    const GAsyncReadyCallback storeResult = [](GObject*, GAsyncResult* finished, gpointer data) {
        *static_cast<GAsyncResult**>(data) = G_ASYNC_RESULT(g_object_ref(finished));
    };
    start(storeResult, &result);
    while (!result)
        g_main_context_iteration(nullptr, TRUE);
    return result;
}

} // namespace tarnwick
