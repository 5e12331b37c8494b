// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <chrono>
#include <functional>
#include <optional>

namespace tarnwick {

/// Why a request could not be met, in words for the user; nothing if all went well.
using Failure = std::optional<QByteArray>;

/// Carries out the request in a process of its own, whose session and channels are not our
/// caller's, and whatever it starts inherits that. After `patience` the request counts as handed
/// over: the process then goes on waiting for a slow application by itself. Call before there are
/// threads.
[[nodiscard]] Failure handOver(const std::function<Failure()>& request,
                               std::chrono::milliseconds patience);

} // namespace tarnwick
