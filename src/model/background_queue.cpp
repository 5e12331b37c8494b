// SPDX-License-Identifier: MIT
#include "model/background_queue.h"

#include "platform/background_priority.h"

#include <QTimer>

#include <atomic>
#include <chrono>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 3s;
constexpr int waitAtEndMs = 1000;

enum class Place { Held, GivenUp, Left };

} // namespace

BackgroundQueue::BackgroundQueue(QObject* parent)
    : QObject(parent)
    , m_pool(std::make_unique<QThreadPool>())
{}

BackgroundQueue::~BackgroundQueue()
{
    m_pool->clear();
    // The pool's destructor would wait for a hanging job for ever.
    if (!m_pool->waitForDone(waitAtEndMs))
        static_cast<void>(m_pool.release());
}

void BackgroundQueue::post(std::function<void()> job)
{
    auto place = std::make_shared<std::atomic<Place>>(Place::Held);
    QThreadPool* const pool = m_pool.get();

    const auto giveUpPlace = [place, pool] {
        auto held = Place::Held;
        if (place->compare_exchange_strong(held, Place::GivenUp))
            pool->releaseThread();
    };
    pool->start([this, place, pool, giveUpPlace, job = std::move(job)] {
        enterBackgroundPriority();
        QMetaObject::invokeMethod(
            this, [this, giveUpPlace] { QTimer::singleShot(patience, this, giveUpPlace); });
        job();
        if (place->exchange(Place::Left) == Place::GivenUp)
            pool->reserveThread();
    });
}

} // namespace tarnwick
