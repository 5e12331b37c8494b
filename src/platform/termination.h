// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace tarnwick {

/// Does what is to be done before the process ends in order.
///
/// That is when the event loop ends, when the display goes and Qt therefore ends the process, and
/// on SIGTERM, SIGINT and SIGHUP, unless whoever started the process had them ignored. A signal
/// ends the event loop after the action; a process that is still there 10 seconds later is killed.
/// One instance, made on the main thread after the application object.
class Termination
{
public:
    /// The action may be called more than once, and on a thread of its own.
    explicit Termination(std::function<void()> action);
    ~Termination();
    Termination(const Termination&) = delete;
    Termination& operator=(const Termination&) = delete;
};

} // namespace tarnwick
