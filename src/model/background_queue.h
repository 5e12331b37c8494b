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
/// A job that takes longer than a few seconds (git on a dead network folder) gives up its place, so
/// that it does not hold up the others. Destruction drops the jobs not yet begun and waits a moment
/// for the running ones; a job that hangs even then is left to the end of the process.
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
