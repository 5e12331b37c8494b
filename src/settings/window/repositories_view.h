// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
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

/// The tab "Repositories", which edits the repository list. It follows changes made elsewhere, and
/// saves its own at once. Saving blocks for two git runs per repository, with a wait cursor; mouse
/// clicks in that time are discarded.
class RepositoriesView : public QWidget
{
    Q_OBJECT

public:
    /// Both outlive the view.
    RepositoriesView(RepoManager& mgr, SettingsHost& host, QWidget* parent = nullptr);

    /// Adds the text of the field as it is, and leaves it in the field.
    void addRepository();
    void confirmRemoval(std::shared_ptr<RepoViewModel> record);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] ReorderableColumn* newList();
    void removePressedRepository();
    void runBusy(const std::function<void()>& change);
    void endBusy();

    RepoManager& m_mgr;
    SettingsHost& m_host;
    const bool m_allowReorder = true;
    // In tab order.
    ReorderableColumn* const m_list;
    QLineEdit* const m_path;
    QPushButton* const m_add;
    /// The record whose removal is being confirmed.
    std::shared_ptr<RepoViewModel> m_pressedRepoViewModel;
    QTimer m_busyEnd;
    bool m_addHadFocus = false;
};

} // namespace tarnwick
