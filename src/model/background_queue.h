// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QThreadPool>

#include <functional>
#include <memory>

namespace tarnwick {

/// The one pool of low-priority worker threads, as wide as the machine has cores. Jobs run
/// concurrently and in no particular order.
///
/// A job that takes longer than 3 seconds (git on a dead network folder) no longer counts against
/// the limit of threads, so that it does not block the others. Destruction drops the jobs that have
/// not started and waits up to 1 second for the running ones; a job that still hangs then keeps its
/// thread until the process exits.
/// Lives on the main thread, whose event loop must run.
class BackgroundQueue : public QObject
{
    Q_OBJECT

public:
    explicit BackgroundQueue(QObject* parent = nullptr);
    ~BackgroundQueue() override;

    void post(std::function<void()> job);

private:
    std::unique_ptr<QThreadPool> m_pool;
};

} // namespace tarnwick
