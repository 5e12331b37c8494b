// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <functional>
#include <memory>

namespace tarnwick {

/// The one pool of low-priority worker threads, as wide as the machine has cores. Jobs run
/// concurrently and in no particular order.
///
/// A job that takes long (git on a dead network folder) hangs: it no longer counts against the
/// limit of threads, so that it does not block the others. It hangs after 3 seconds, or after half
/// a second if another job waits for a thread; 64 can hang at a time. Destruction drops the jobs
/// that have not started and waits up to 1 second for the running ones; a job that still hangs then
/// keeps its thread until the process exits. Lives on the main thread, whose event loop must run.
class BackgroundQueue : public QObject
{
    Q_OBJECT

public:
    explicit BackgroundQueue(QObject* parent = nullptr);
    ~BackgroundQueue() override;

    /// While a job of the same owner hangs, this one waits for its end, and replaces an earlier one
    /// that waits. An owner is only an address here.
    void post(std::function<void()> job, const void* owner = nullptr);

private:
    struct Run;
    struct Shared;

    void start(std::function<void()> job, const void* owner);
    void releaseThreadsOfHangingJobs();
    void endHanging(const void* owner);

    std::unique_ptr<QThreadPool> m_pool;
    const std::shared_ptr<Shared> m_shared;
    QTimer m_timer;
    /// How many jobs of an owner hang, and of all owners.
    QHash<const void*, int> m_hanging;
    int m_hangingCount = 0;
    QHash<const void*, std::function<void()>> m_postponed;
};

} // namespace tarnwick
