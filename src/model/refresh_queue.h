// SPDX-License-Identifier: MIT
#pragma once

#include "model/repo_view_model.h"

#include <QObject>
#include <QTimer>

#include <deque>
#include <memory>

namespace tarnwick {

/// Refreshes lists of records: starts a status query in the background for each repository, and
/// then blocks for its branch query. One record is refreshed in a turn of the event loop, so that
/// input and painting wait for one branch query at most. Records keep their order; a list that is
/// added while another is being refreshed comes after it. Main thread only.
class RefreshQueue : public QObject
{
    Q_OBJECT

public:
    RefreshQueue();

    void add(const RepoViewModels& models);
    /// Lets go of the records that have not had their turn.
    void clear();

private:
    void refreshNext();

    std::deque<std::shared_ptr<RepoViewModel>> m_waiting;
    QTimer m_next;
};

} // namespace tarnwick
