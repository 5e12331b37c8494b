// SPDX-License-Identifier: MIT
#pragma once

#include "model/refresh_queue.h"

#include <QEventLoop>

#include <chrono>
#include <functional>

namespace tarnwick::bench {

/// Waits for what queries publish.
class Published
{
public:
    /// Counts the next branch and the next status of each record.
    explicit Published(const RepoViewModels& records);
    /// Runs the event loop until all are there.
    void wait();

private:
    void count();

    QEventLoop m_loop;
    QObject m_context;
    std::size_t m_missing;
};

/// Runs the event loop.
void waitFor(std::chrono::milliseconds time);

/// In milliseconds.
[[nodiscard]] double duration(const std::function<void()>& work);

/// In milliseconds, until the last field is published.
[[nodiscard]] double refreshTime(const RepoViewModels& records);

} // namespace tarnwick::bench
