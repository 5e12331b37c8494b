// SPDX-License-Identifier: MIT
#pragma once

#include "model/repo_view_model.h"

#include <QObject>
#include <QTimer>

namespace tarnwick {

/// Follows a list of records and sums up in words what git says about them. Main thread only.
class RepoOverview : public QObject
{
    Q_OBJECT

public:
    explicit RepoOverview(QObject* parent = nullptr);

    [[nodiscard]] const RepoViewModels& models() const { return m_models; }
    void setModels(RepoViewModels models);

    /// How many repositories are watched and how many are not clean, and what git is asked now.
    [[nodiscard]] QString text() const;
    /// How many repositories git has not answered for yet; empty when it has for all.
    [[nodiscard]] QString progressText() const;

Q_SIGNALS:
    /// Some of it may read differently now. The changes of up to 100 ms are announced together.
    void changed();

private:
    RepoViewModels m_models;
    QTimer m_announcement;
};

/// One repository in a line: its name, its branch and its status summary, as far as known.
[[nodiscard]] QString briefText(const RepoViewModel& record);

} // namespace tarnwick
