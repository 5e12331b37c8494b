// SPDX-License-Identifier: MIT
#include "settings/window/repositories_view.h"

#include "model/repo_manager.h"
#include "settings/grey_frame.h"
#include "settings/reorder/reorderable_for_each.h"
#include "settings/settings_host.h"
#include "settings/window/path_field.h"
#include "settings/window/repository_row.h"
#include "views/colors.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

#include <chrono>
#include <utility>

namespace tarnwick {

namespace {

constexpr int margin = 20;
constexpr int spacing = 10;
constexpr int buttonPadding = 8;
/// Enough for the event loop to deliver the input that was queued while it was blocked.
constexpr std::chrono::milliseconds inputQueueTime(30);

/// A record as a list item. Records of the same directory are equal.
struct RepositoryItem
{
    std::shared_ptr<RepoViewModel> record;

    friend bool operator==(const RepositoryItem& a, const RepositoryItem& b)
    {
        return *a.record == *b.record;
    }
    friend std::size_t qHash(const RepositoryItem& item, std::size_t seed = 0)
    {
        return qHash(*item.record, seed);
    }
};

using RepositoryItems = std::vector<RepositoryItem>;

RepositoryItems itemsOf(const RepoViewModels& records)
{
    RepositoryItems items;
    for (const auto& record : records)
        items.push_back({record});
    return items;
}

RepoViewModels recordsOf(const RepositoryItems& items)
{
    RepoViewModels records;
    for (const auto& item : items)
        records.push_back(item.record);
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
    m_add->setMinimumWidth(m_add->sizeHint().width() + 2 * buttonPadding);
    m_busyEnd.setSingleShot(true);
    connect(&m_busyEnd, &QTimer::timeout, this, &RepositoriesView::endBusy);

    auto* const editor = new QHBoxLayout;
    editor->setSpacing(spacing);
    editor->addWidget(m_path, 1);
    editor->addWidget(m_add);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->addWidget(new GreyFrame(m_list, 0, this), 1);
    column->addLayout(editor);
}

ReorderableColumn* RepositoriesView::newList()
{
    const auto newRow = [this](const RepositoryItem& item) {
        auto* const row = new RepositoryRow(item.record->name(), item.record->dir());
        // By then the list may have replaced this record by an equal one.
        connect(row, &RepositoryRow::removalRequested, this, [this, dir = item.record->dir()] {
            for (const auto& record : m_mgr.models()) {
                if (record->dir() == dir)
                    return confirmRemoval(record);
            }
        });
        return row;
    };
    auto* const list = new ReorderableList<RepositoryItem>(
        {[this] { return itemsOf(m_mgr.models()); },
         [this](const RepositoryItems& items) { m_mgr.setModels(recordsOf(items)); },
         [this](const RepositoryItems& items) {
             m_mgr.setModels(recordsOf(items));
             runBusy([this] { m_mgr.save(); });
         }},
        [this] { return m_allowReorder; }, newRow, this);
    connect(&m_mgr, &RepoManager::modelsChanged, list, [list] { list->reload(); });
    return list;
}

void RepositoriesView::addRepository()
{
    runBusy([this] { m_mgr.add(m_path->text(), m_host.newRecordDelegate()); });
}

void RepositoriesView::confirmRemoval(std::shared_ptr<RepoViewModel> record)
{
    m_pressedRepoViewModel = std::move(record);
    auto* const alert = new QMessageBox(QMessageBox::Warning, {}, tr("Please confirm the removal"),
                                        QMessageBox::NoButton, this);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->setWindowTitle(QStringLiteral("Tarnwick"));
    QPushButton* const remove = alert->addButton(tr("Remove it"), QMessageBox::DestructiveRole);
    QPalette colors = remove->palette();
    colors.setColor(QPalette::ButtonText, colors::red(appearanceOf(colors)));
    remove->setPalette(colors);

    QPushButton* const keep = alert->addButton(tr("Keep it"), QMessageBox::RejectRole);
    alert->setDefaultButton(keep);
    alert->setEscapeButton(keep);
    connect(alert, &QMessageBox::finished, this, [this, alert, remove] {
        if (alert->clickedButton() == remove)
            removePressedRepository();
        m_pressedRepoViewModel.reset();
    });
    alert->open();
}

void RepositoriesView::removePressedRepository()
{
    if (const auto pressed = std::exchange(m_pressedRepoViewModel, nullptr))
        runBusy([this, &pressed] { m_mgr.remove(*pressed); });
}

void RepositoriesView::runBusy(const std::function<void()>& change)
{
    if (QWindow* const nativeWindow = window()->windowHandle())
        nativeWindow->installEventFilter(this);
    m_addHadFocus = m_addHadFocus || m_add->hasFocus();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    // Disabling a button that has the focus would move the focus to the next widget.
    m_add->clearFocus();
    m_add->setEnabled(false);
    window()->repaint();
    change();
    QApplication::restoreOverrideCursor();
    m_busyEnd.start(inputQueueTime);
}

void RepositoriesView::endBusy()
{
    if (QWindow* const nativeWindow = window()->windowHandle())
        nativeWindow->removeEventFilter(this);
    m_add->setEnabled(true);
    if (std::exchange(m_addHadFocus, false) && !window()->focusWidget())
        m_add->setFocus();
}

bool RepositoriesView::eventFilter(QObject* /*watched*/, QEvent* event)
{
    // A late click would hit whatever stands there by then, such as another row's button.
    return event->type() == QEvent::MouseButtonPress ||
           event->type() == QEvent::MouseButtonDblClick ||
           event->type() == QEvent::MouseButtonRelease;
}

} // namespace tarnwick
