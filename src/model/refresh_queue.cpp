// SPDX-License-Identifier: MIT
#include "model/refresh_queue.h"

#include <utility>

namespace tarnwick {

void RefreshQueue::add(const RepoViewModels& models)
{
    for (const auto& record : models)
        record->announceRefresh();
    m_waiting.insert(m_waiting.end(), models.begin(), models.end());
    scheduleNext();
}

void RefreshQueue::clear()
{
    for (const auto& record : std::exchange(m_waiting, {}))
        record->withdrawAnnouncement();
}

void RefreshQueue::scheduleNext()
{
    if (m_waiting.empty() || m_isScheduled)
        return;
    m_isScheduled = true;
    // Events that are posted while others are delivered wait for the next turn of the event loop.
    QMetaObject::invokeMethod(this, &RefreshQueue::refreshNext, Qt::QueuedConnection);
}

void RefreshQueue::refreshNext()
{
    m_isScheduled = false;
    if (m_waiting.empty())
        return;
    const auto record = std::move(m_waiting.front());
    m_waiting.pop_front();
    record->refreshStatusInBackground();
    record->withdrawAnnouncement();
    record->refreshBranch();
    scheduleNext();
}

} // namespace tarnwick
