// SPDX-License-Identifier: MIT
#include "model/background_queue.h"

#include "platform/background_priority.h"

#include <QMutex>

#include <atomic>
#include <chrono>
#include <utility>
#include <vector>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto timeout = 3s;
constexpr auto timeoutIfAwaited = 500ms;
constexpr auto interval = 250ms;
/// Each holds a thread, a child process and two file descriptors, of which there may be 1024.
constexpr int maxHanging = 64;
constexpr std::chrono::milliseconds shutdownTimeout = 1s;

enum class RunState { Running, Hanging, Finished };

} // namespace

struct BackgroundQueue::Run
{
    const void* owner = nullptr;
    const Clock::time_point start = Clock::now();
    std::atomic<RunState> state = RunState::Running;
};

/// What outlives the queue if a job does.
struct BackgroundQueue::Shared
{
    /// From any thread; nothing happens once the queue is gone.
    template <typename Function>
    void callOnQueue(Function function)
    {
        const QMutexLocker lock(&mutex);
        if (queue)
            QMetaObject::invokeMethod(queue, std::move(function), Qt::QueuedConnection);
    }

    void add(const std::shared_ptr<Run>& run)
    {
        const QMutexLocker lock(&mutex);
        runs.push_back(run);
    }
    void remove(const std::shared_ptr<Run>& run)
    {
        const QMutexLocker lock(&mutex);
        std::erase(runs, run);
    }

    QMutex mutex;
    BackgroundQueue* queue;
    /// Those that have not hung so far.
    std::vector<std::shared_ptr<Run>> runs;
    std::atomic_int waitingCount = 0;
};

BackgroundQueue::BackgroundQueue(QObject* parent)
    : QObject(parent)
    , m_pool(std::make_unique<QThreadPool>())
    , m_shared(std::make_shared<Shared>())
{
    m_shared->queue = this;
    m_timer.setInterval(interval);
    connect(&m_timer, &QTimer::timeout, this, &BackgroundQueue::releaseThreadsOfHangingJobs);
}

BackgroundQueue::~BackgroundQueue()
{
    m_pool->clear();
    // The destructor of the pool would wait for a hanging job without a timeout.
    if (!m_pool->waitForDone(static_cast<int>(shutdownTimeout.count())))
        static_cast<void>(m_pool.release());
    const QMutexLocker lock(&m_shared->mutex);
    m_shared->queue = nullptr;
}

void BackgroundQueue::post(std::function<void()> job, const void* owner)
{
    if (owner && m_hanging.contains(owner))
        m_postponed[owner] = std::move(job);
    else
        start(std::move(job), owner);
}

void BackgroundQueue::start(std::function<void()> job, const void* owner)
{
    ++m_shared->waitingCount;
    if (!m_timer.isActive())
        m_timer.start();
    m_pool->start([shared = m_shared, pool = m_pool.get(), owner, job = std::move(job)] {
        enterBackgroundPriority();
        const auto run = std::make_shared<Run>();
        run->owner = owner;
        shared->add(run);
        --shared->waitingCount;
        job();
        shared->remove(run);
        if (run->state.exchange(RunState::Finished) == RunState::Hanging) {
            pool->reserveThread();
            shared->callOnQueue([shared, owner] { shared->queue->endHanging(owner); });
        }
    });
}

void BackgroundQueue::releaseThreadsOfHangingJobs()
{
    const auto age =
        m_shared->waitingCount > 0 ? Clock::duration(timeoutIfAwaited) : Clock::duration(timeout);
    const auto now = Clock::now();
    const QMutexLocker lock(&m_shared->mutex);
    std::erase_if(m_shared->runs, [this, age, now](const std::shared_ptr<Run>& run) {
        auto running = RunState::Running;
        if (now - run->start < age || m_hangingCount >= maxHanging)
            return false;
        if (run->state.compare_exchange_strong(running, RunState::Hanging)) {
            ++m_hanging[run->owner];
            ++m_hangingCount;
            m_pool->releaseThread();
        }
        return true;
    });
    if (m_shared->runs.empty() && m_shared->waitingCount == 0)
        m_timer.stop();
}

void BackgroundQueue::endHanging(const void* owner)
{
    --m_hangingCount;
    if (--m_hanging[owner] > 0)
        return;
    m_hanging.remove(owner);
    if (auto job = m_postponed.take(owner))
        start(std::move(job), owner);
}

} // namespace tarnwick
