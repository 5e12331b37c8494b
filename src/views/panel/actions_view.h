// SPDX-License-Identifier: MIT
#pragma once

#include "views/panel/panel_items.h"

#include <QWidget>

#include <memory>
#include <vector>

class QVBoxLayout;

namespace tarnwick {

class CommandRunner;

/// The actions panel of a repository, 300 wide. Which applications it offers is settled when it is
/// made; the rest is looked up by `render()`, and again whenever the record changes while the panel
/// is visible. Each entry acts once per click, reports nothing and leaves the menu open.
class ActionsView : public QWidget
{
    Q_OBJECT

public:
    /// The runner outlives the view.
    ActionsView(std::shared_ptr<RepoViewModel> vm, QList<AppEntry> appEntries,
                const CommandRunner& runner, QWidget* parent = nullptr);

    /// To be called before the panel is shown. Entries that stay as they are keep the focus.
    void render();

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void observe();
    void scheduleRender();
    [[nodiscard]] QWidget* newWidget(const PanelItem& item);
    void perform(const PanelItem& item);

    const std::shared_ptr<RepoViewModel> m_vm;
    const QList<AppEntry> m_appEntries;
    const CommandRunner& m_runner;

    QVBoxLayout* m_column;
    /// One widget of the column for each.
    std::vector<PanelItem> m_items;
    bool m_isRenderScheduled = false;
};

} // namespace tarnwick
