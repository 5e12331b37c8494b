// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <chrono>
#include <functional>
#include <optional>

namespace tarnwick {

/// Why a request could not be met, in words for the user; nothing if all went well.
using Failure = std::optional<QByteArray>;

/// Runs the request in a child process with a session of its own and its standard streams on
/// /dev/null, which everything that it starts inherits. Returns the child's result, or success
/// after `timeout`; the child then waits for a slow application alone. Forks, so call it before
/// there are threads.
[[nodiscard]] Failure runDetached(const std::function<Failure()>& request,
                                  std::chrono::milliseconds timeout);

} // namespace tarnwick
