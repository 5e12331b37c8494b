// SPDX-License-Identifier: MIT
#include "model/refresh_queue.h"

#include <utility>

namespace tarnwick {

RefreshQueue::RefreshQueue()
{
    // A timer lets input go first that came in the meantime; a posted event would come before it.
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &RefreshQueue::refreshNext);
}

void RefreshQueue::add(const RepoViewModels& models)
{
    for (const auto& record : models)
        record->announceRefresh();
    m_waiting.insert(m_waiting.end(), models.begin(), models.end());
    m_next.start();
}

void RefreshQueue::clear()
{
    for (const auto& record : std::exchange(m_waiting, {}))
        record->withdrawAnnouncement();
}

void RefreshQueue::refreshNext()
{
    if (m_waiting.empty())
        return;
    const auto record = std::move(m_waiting.front());
    m_waiting.pop_front();
    record->refreshStatusInBackground();
    record->withdrawAnnouncement();
    record->refreshBranch();
    if (!m_waiting.empty())
        m_next.start();
}

} // namespace tarnwick
