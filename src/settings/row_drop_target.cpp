// SPDX-License-Identifier: MIT
#include "settings/row_drop_target.h"

#include "settings/reorderable_column.h"
#include "settings/reorderable_row.h"

#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>

#include <chrono>

namespace tarnwick {

namespace {

constexpr int edge = 28;
constexpr std::chrono::milliseconds scrollInterval(16);

/// Pixels in one interval: the nearer to the edge, the faster.
int scrollStep(int y, int height)
{
    constexpr int slowness = 3;
    if (y < edge)
        return (y - edge) / slowness;
    return std::max(0, y - (height - edge)) / slowness;
}

Qt::DropAction actionFor(const QDropEvent& event, DropDelegate& row)
{
    // Text from anywhere else is not ours to move: whoever it is from would delete it.
    return qobject_cast<ReorderableColumn*>(event.source()) ? row.dropUpdated() : Qt::CopyAction;
}

} // namespace

RowDropTarget::RowDropTarget(ReorderableColumn& column)
    : QObject(&column)
    , m_column(column)
{
    m_scrolling.setInterval(scrollInterval);
    connect(&m_scrolling, &QTimer::timeout, this, &RowDropTarget::scroll);
    column.viewport()->setAcceptDrops(true);
    column.viewport()->installEventFilter(this);
}

bool RowDropTarget::eventFilter(QObject* /*watched*/, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
        event->setAccepted(static_cast<QDropEvent*>(event)->mimeData()->hasText());
        return true;
    case QEvent::DragMove:
        move(static_cast<QDragMoveEvent&>(*event));
        return true;
    case QEvent::DragLeave:
        leave();
        return true;
    case QEvent::Drop:
        drop(static_cast<QDropEvent&>(*event));
        return true;
    default:
        return false;
    }
}

void RowDropTarget::move(QDragMoveEvent& event)
{
    m_pointerY = event.position().toPoint().y();
    if (scrollStep(m_pointerY, m_column.viewport()->height()) == 0)
        m_scrolling.stop();
    else if (!m_scrolling.isActive())
        m_scrolling.start();
    enter(m_column.rowAt(m_pointerY));

    const auto delegate = m_entered ? m_entered->dropDelegate() : nullptr;
    event.setAccepted(delegate && delegate->validateDrop());
    if (event.isAccepted())
        event.setDropAction(actionFor(event, *delegate));
}

void RowDropTarget::drop(QDropEvent& event)
{
    m_scrolling.stop();
    m_entered.clear();
    auto* const row = m_column.rowAt(event.position().toPoint().y());
    const auto delegate = row ? row->dropDelegate() : nullptr;
    event.setAccepted(delegate && delegate->performDrop());
    if (!event.isAccepted())
        return;
    event.setDropAction(actionFor(event, *delegate));
    Q_EMIT dropped();
}

void RowDropTarget::leave()
{
    m_scrolling.stop();
    enter(nullptr);
}

void RowDropTarget::enter(ReorderableRow* row)
{
    if (row == m_entered)
        return;
    const auto left = m_entered ? m_entered->dropDelegate() : nullptr;
    if (left)
        left->dropExited();
    m_entered = row;
    const auto entered = row ? row->dropDelegate() : nullptr;
    if (entered && entered->validateDrop())
        entered->dropEntered();
}

void RowDropTarget::scroll()
{
    QScrollBar* const bar = m_column.verticalScrollBar();
    bar->setValue(bar->value() + scrollStep(m_pointerY, m_column.viewport()->height()));
    enter(m_column.rowAt(m_pointerY));
}

} // namespace tarnwick
