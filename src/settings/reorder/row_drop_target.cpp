// SPDX-License-Identifier: MIT
#include "settings/reorder/row_drop_target.h"

#include "settings/reorder/reorderable_column.h"
#include "settings/reorder/reorderable_row.h"

#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>

#include <chrono>

namespace tarnwick {

namespace {

constexpr int autoScrollMargin = 28;
constexpr std::chrono::milliseconds autoScrollInterval(16);

/// Pixels in one interval, more of them nearer to the edge; negative is upwards.
int autoScrollDistance(int y, int height)
{
    constexpr int divisor = 3;
    if (y < autoScrollMargin)
        return (y - autoScrollMargin) / divisor;
    return std::max(0, y - (height - autoScrollMargin)) / divisor;
}

Qt::DropAction dropActionFor(const QDropEvent& event, DropDelegate& delegate)
{
    // With a move, another drag source would delete its text.
    return qobject_cast<ReorderableColumn*>(event.source()) ? delegate.dropUpdated()
                                                            : Qt::CopyAction;
}

} // namespace

RowDropTarget::RowDropTarget(ReorderableColumn& column)
    : QObject(&column)
    , m_column(column)
{
    m_autoScrollTimer.setInterval(autoScrollInterval);
    connect(&m_autoScrollTimer, &QTimer::timeout, this, &RowDropTarget::autoScroll);
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
        dragMoved(static_cast<QDragMoveEvent&>(*event));
        return true;
    case QEvent::DragLeave:
        dragLeft();
        return true;
    case QEvent::Drop:
        drop(static_cast<QDropEvent&>(*event));
        return true;
    default:
        return false;
    }
}

void RowDropTarget::dragMoved(QDragMoveEvent& event)
{
    m_pointerY = event.position().toPoint().y();
    if (autoScrollDistance(m_pointerY, m_column.viewport()->height()) == 0)
        m_autoScrollTimer.stop();
    else if (!m_autoScrollTimer.isActive())
        m_autoScrollTimer.start();
    setTargetRow(m_column.rowAt(m_pointerY));

    const auto delegate = m_targetRow ? m_targetRow->dropDelegate() : nullptr;
    event.setAccepted(delegate && delegate->validateDrop());
    if (event.isAccepted())
        event.setDropAction(dropActionFor(event, *delegate));
}

void RowDropTarget::dragLeft()
{
    m_autoScrollTimer.stop();
    setTargetRow(nullptr);
}

void RowDropTarget::drop(QDropEvent& event)
{
    m_autoScrollTimer.stop();
    m_targetRow.clear();
    auto* const row = m_column.rowAt(event.position().toPoint().y());
    const auto delegate = row ? row->dropDelegate() : nullptr;
    event.setAccepted(delegate && delegate->performDrop());
    if (!event.isAccepted())
        return;
    event.setDropAction(dropActionFor(event, *delegate));
    Q_EMIT dropped();
}

void RowDropTarget::setTargetRow(ReorderableRow* row)
{
    if (row == m_targetRow)
        return;
    const auto previous = m_targetRow ? m_targetRow->dropDelegate() : nullptr;
    if (previous)
        previous->dropExited();
    m_targetRow = row;
    const auto current = row ? row->dropDelegate() : nullptr;
    if (current && current->validateDrop())
        current->dropEntered();
}

void RowDropTarget::autoScroll()
{
    QScrollBar* const bar = m_column.verticalScrollBar();
    bar->setValue(bar->value() + autoScrollDistance(m_pointerY, m_column.viewport()->height()));
    setTargetRow(m_column.rowAt(m_pointerY));
}

} // namespace tarnwick
