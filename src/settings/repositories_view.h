// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>
#include <memory>

class QLineEdit;
class QPushButton;

namespace tarnwick {

class ReorderableColumn;
class RepoManager;
class RepoViewModel;
class SettingsHost;

/// The tab that edits the list of watched repositories. It mirrors the list, whoever changes it;
/// its own changes are saved at once, and while the git runs of that block, it shows so.
class RepositoriesView : public QWidget
{
    Q_OBJECT

public:
    /// List and host outlive the view.
    RepositoriesView(RepoManager& mgr, SettingsHost& host, QWidget* parent = nullptr);

    /// Adds the text of the field, exactly as it stands there, and leaves it there.
    void addRepository();
    void confirmRemoval(std::shared_ptr<RepoViewModel> record);

private:
    [[nodiscard]] ReorderableColumn* newList();
    void removePressedRepository();
    void whileBusy(const std::function<void()>& change);

    RepoManager& m_mgr;
    SettingsHost& m_host;
    const bool m_allowReorder = true;
    // Made in the order of the tab key.
    ReorderableColumn* const m_list;
    QLineEdit* const m_path;
    QPushButton* const m_add;
    /// Whose removal is being confirmed.
    std::shared_ptr<RepoViewModel> m_pressedRepoViewModel;
};

} // namespace tarnwick
