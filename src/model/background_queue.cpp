// SPDX-License-Identifier: MIT
#include "model/background_queue.h"

#include "platform/background_priority.h"

#include <QTimer>

#include <atomic>
#include <chrono>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;

constexpr auto jobTimeout = 3s;
constexpr std::chrono::milliseconds shutdownTimeout = 1s;

enum class JobState { Running, Detached, Finished };

} // namespace

BackgroundQueue::BackgroundQueue(QObject* parent)
    : QObject(parent)
    , m_pool(std::make_unique<QThreadPool>())
{}

BackgroundQueue::~BackgroundQueue()
{
    m_pool->clear();
    // The destructor of the pool would wait for a hanging job without a timeout.
    if (!m_pool->waitForDone(static_cast<int>(shutdownTimeout.count())))
        static_cast<void>(m_pool.release());
}

void BackgroundQueue::post(std::function<void()> job)
{
    auto state = std::make_shared<std::atomic<JobState>>(JobState::Running);
    QThreadPool* const pool = m_pool.get();

    const auto detach = [state, pool] {
        auto running = JobState::Running;
        if (state->compare_exchange_strong(running, JobState::Detached))
            pool->releaseThread();
    };
    pool->start([this, state, pool, detach, job = std::move(job)] {
        enterBackgroundPriority();
        QMetaObject::invokeMethod(this,
                                  [this, detach] { QTimer::singleShot(jobTimeout, this, detach); });
        job();
        if (state->exchange(JobState::Finished) == JobState::Detached)
            pool->reserveThread();
    });
}

} // namespace tarnwick
