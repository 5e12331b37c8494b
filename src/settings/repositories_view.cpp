// SPDX-License-Identifier: MIT
#include "settings/repositories_view.h"

#include "model/repo_manager.h"
#include "settings/grey_frame.h"
#include "settings/path_field.h"
#include "settings/removal_alert.h"
#include "settings/reorderable_list.h"
#include "settings/repository_row.h"
#include "settings/settings_host.h"

#include <QApplication>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace tarnwick {

namespace {

constexpr int inset = 20;
constexpr int spacing = 10;

/// A record as an element of the list: equal to every other record of its directory.
struct ListedRepository
{
    std::shared_ptr<RepoViewModel> record;

    friend bool operator==(const ListedRepository& a, const ListedRepository& b)
    {
        return *a.record == *b.record;
    }
    friend std::size_t qHash(const ListedRepository& listed, std::size_t seed = 0)
    {
        return qHash(*listed.record, seed);
    }
};

using Repositories = std::vector<ListedRepository>;

Repositories listed(const RepoViewModels& records)
{
    Repositories repositories;
    for (const auto& record : records)
        repositories.push_back({record});
    return repositories;
}

RepoViewModels records(const Repositories& repositories)
{
    RepoViewModels records;
    for (const auto& repository : repositories)
        records.push_back(repository.record);
    return records;
}

} // namespace

RepositoriesView::RepositoriesView(RepoManager& mgr, SettingsHost& host, QWidget* parent)
    : QWidget(parent)
    , m_mgr(mgr)
    , m_host(host)
    , m_list(newList())
    , m_path(new PathField(this))
    , m_add(new QPushButton(tr("add repo"), this))
{
    m_path->setPlaceholderText(tr("Example: /Users/yourname/path/to/your/repo"));
    m_path->setAccessibleName(tr("Path of a repository"));
    connect(m_add, &QPushButton::clicked, this, &RepositoriesView::addRepository);

    auto* const editor = new QHBoxLayout;
    editor->setSpacing(spacing);
    editor->addWidget(m_path, 1);
    editor->addWidget(m_add);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(inset, inset, inset, inset);
    column->setSpacing(spacing);
    column->addWidget(new GreyFrame(m_list, 0, this), 1);
    column->addLayout(editor);
}

ReorderableColumn* RepositoriesView::newList()
{
    const auto newRow = [this](const ListedRepository& item) {
        auto* const row = new RepositoryRow(item.record->name(), item.record->dir());
        // The list will have replaced this record by an equal one.
        connect(row, &RepositoryRow::removalRequested, this, [this, dir = item.record->dir()] {
            for (const auto& record : m_mgr.models()) {
                if (record->dir() == dir)
                    return confirmRemoval(record);
            }
        });
        return row;
    };
    auto* const list = new ReorderableList<ListedRepository>(
        {[this] { return listed(m_mgr.models()); },
         [this](const Repositories& items) { m_mgr.setModels(records(items)); },
         [this](const Repositories& items) {
             m_mgr.setModels(records(items));
             whileBusy([this] { m_mgr.save(); });
         }},
        [this] { return m_allowReorder; }, newRow, this);
    connect(&m_mgr, &RepoManager::modelsChanged, list, [list] { list->reload(); });
    return list;
}

void RepositoriesView::addRepository()
{
    whileBusy([this] { m_mgr.add(m_path->text(), m_host.newRecordDelegate()); });
}

void RepositoriesView::confirmRemoval(std::shared_ptr<RepoViewModel> record)
{
    m_pressedRepoViewModel = std::move(record);
    auto* const alert = new RemovalAlert(this);
    connect(alert, &RemovalAlert::removed, this, &RepositoriesView::removePressedRepository);
    connect(alert, &RemovalAlert::kept, this, [this] { m_pressedRepoViewModel.reset(); });
    alert->open();
}

void RepositoriesView::removePressedRepository()
{
    if (const auto pressed = std::exchange(m_pressedRepoViewModel, nullptr))
        whileBusy([this, &pressed] { m_mgr.remove(*pressed); });
}

void RepositoriesView::whileBusy(const std::function<void()>& change)
{
    const bool hadFocus = m_add->hasFocus();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    // A button that is disabled would hand its focus on.
    m_add->clearFocus();
    m_add->setEnabled(false);
    window()->repaint();
    change();
    m_add->setEnabled(true);
    if (hadFocus)
        m_add->setFocus();
    QApplication::restoreOverrideCursor();
}

} // namespace tarnwick
