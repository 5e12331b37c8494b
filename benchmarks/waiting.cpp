// SPDX-License-Identifier: MIT
#include "waiting.h"

#include <QElapsedTimer>
#include <QTimer>

namespace tarnwick::bench {

Published::Published(const RepoViewModels& records)
    : m_missing(2 * records.size())
{
    for (const auto& record : records) {
        QObject::connect(record.get(), &RepoViewModel::branchStringChanged, &m_context,
                         [this] { count(); });
        QObject::connect(record.get(), &RepoViewModel::isLoadingChanged, &m_context,
                         [this, published = record.get()] {
                             if (!published->isLoading())
                                 count();
                         });
    }
}

void Published::wait()
{
    if (m_missing > 0)
        m_loop.exec();
}

void Published::count()
{
    if (--m_missing == 0)
        m_loop.quit();
}

void waitFor(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

double duration(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) * 1e-6;
}

double refreshTime(const RepoViewModels& records)
{
    RefreshQueue queue;
    Published published(records);
    return duration([&] {
        queue.add(records);
        published.wait();
    });
}

} // namespace tarnwick::bench
