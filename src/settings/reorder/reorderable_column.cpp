// SPDX-License-Identifier: MIT
#include "settings/reorder/reorderable_column.h"

#include "settings/list_navigation.h"
#include "settings/reorder/reorderable_row.h"
#include "settings/reorder/row_drop_target.h"
#include "settings/reorder/row_stack.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace tarnwick {

ReorderableColumn::ReorderableColumn(QWidget* parent)
    : QScrollArea(parent)
    , m_stack(new RowStack(this))
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidget(m_stack);
    m_stack->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    const auto* const target = new RowDropTarget(*this);
    connect(target, &RowDropTarget::dropped, this, &ReorderableColumn::dragStateChanged);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*old*/, QWidget* now) { focusChanged(now); });
}

ReorderableColumn::~ReorderableColumn()
{
    if (m_isDragging)
        QDrag::cancel();
}

const std::vector<ReorderableRow*>& ReorderableColumn::rows() const
{
    return m_stack->rows();
}

void ReorderableColumn::setRows(std::vector<ReorderableRow*> rows)
{
    const int current = m_stack->indexOf(m_currentRow);
    const bool hadFocus = m_currentRow && window()->focusWidget() &&
                          (m_currentRow == window()->focusWidget() ||
                           m_currentRow->isAncestorOf(window()->focusWidget()));
    m_stack->setRows(std::move(rows));
    if (m_stack->indexOf(m_currentRow) >= 0)
        return;
    const int last = static_cast<int>(m_stack->rows().size()) - 1;
    const int neighbour = std::clamp(current, 0, std::max(0, last));
    setCurrentRow(last < 0 ? nullptr : m_stack->rows()[static_cast<std::size_t>(neighbour)]);
    if (hadFocus && m_currentRow)
        focusRow(neighbour);
}

ReorderableRow* ReorderableColumn::rowAt(int y) const
{
    return m_stack->rowAt(m_stack->mapFrom(viewport(), QPoint(0, y)).y());
}

void ReorderableColumn::hideEvent(QHideEvent* event)
{
    dropMovedRow();
    QScrollArea::hideEvent(event);
}

void ReorderableColumn::keyPressEvent(QKeyEvent* event)
{
    const int count = static_cast<int>(m_stack->rows().size());
    const int focused = m_stack->indexOf(window()->focusWidget());
    const auto target =
        focused < 0 ? std::nullopt
                    : rowAfterKey(event->key(), focused, count,
                                  viewport()->height() / m_stack->rowRect(focused).height());
    if (!target)
        QScrollArea::keyPressEvent(event);
    else if (*target != focused && (event->modifiers() & Qt::AltModifier) != 0)
        moveRow(focused, *target);
    else if (*target != focused)
        focusRow(*target);
}

void ReorderableColumn::keyReleaseEvent(QKeyEvent* event)
{
    // While Alt is held, further moves may follow.
    const bool isAltReleased =
        event->key() == Qt::Key_Alt || (event->modifiers() & Qt::AltModifier) == 0;
    if (isAltReleased && !event->isAutoRepeat())
        dropMovedRow();
    QScrollArea::keyReleaseEvent(event);
}

void ReorderableColumn::mousePressEvent(QMouseEvent* event)
{
    m_pressPosition = event->position().toPoint();
    m_pressedRow = event->button() == Qt::LeftButton ? rowAt(m_pressPosition.y()) : nullptr;
}

void ReorderableColumn::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint distance = event->position().toPoint() - m_pressPosition;
    if (!m_pressedRow || distance.manhattanLength() < QApplication::startDragDistance())
        return;
    ReorderableRow& row = *std::exchange(m_pressedRow, nullptr);
    if (row.dragSource())
        startDrag(row, row.mapFrom(viewport(), m_pressPosition));
}

void ReorderableColumn::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    m_pressedRow = nullptr;
}

void ReorderableColumn::startDrag(ReorderableRow& row, QPoint hotSpot)
{
    dropMovedRow();
    auto* const drag = new QDrag(this);
    // A running drag must survive that its window is closed.
    drag->setParent(nullptr);
    drag->setPixmap(row.grab());
    drag->setHotSpot(hotSpot);
    auto* const mimeData = new QMimeData;
    mimeData->setText(row.dragSource()());
    drag->setMimeData(mimeData);
    Q_EMIT dragStateChanged();

    const QPointer<ReorderableColumn> self(this);
    m_isDragging = true;
    drag->exec(Qt::MoveAction);
    if (self)
        m_isDragging = false;
}

void ReorderableColumn::moveRow(int from, int to)
{
    const auto& rows = m_stack->rows();
    ReorderableRow& row = *rows[static_cast<std::size_t>(from)];
    const auto delegate = rows[static_cast<std::size_t>(to)]->dropDelegate();
    if (!row.dragSource() || !delegate)
        return;
    row.dragSource()();
    delegate->dropEntered();
    m_movedRow = &row;
    Q_EMIT dragStateChanged();
    scrollToRow(to);
}

void ReorderableColumn::dropMovedRow()
{
    const QPointer<ReorderableRow> row = std::exchange(m_movedRow, nullptr);
    const auto delegate = row ? row->dropDelegate() : nullptr;
    if (!delegate)
        return;
    delegate->performDrop();
    Q_EMIT dragStateChanged();
}

void ReorderableColumn::focusRow(int index)
{
    m_stack->rows()[static_cast<std::size_t>(index)]->setFocus(Qt::TabFocusReason);
    scrollToRow(index);
}

void ReorderableColumn::setCurrentRow(ReorderableRow* row)
{
    if (m_currentRow)
        m_currentRow->setCurrent(false);
    m_currentRow = row;
    if (!row)
        return;
    row->setCurrent(true);
    // setTabOrder() ignores widgets without a focus policy.
    setFocusPolicy(Qt::TabFocus);
    setTabOrder(this, row);
    setFocusPolicy(Qt::NoFocus);
    QWidget* previous = row;
    for (QAbstractButton* const button : row->findChildren<QAbstractButton*>()) {
        setTabOrder(previous, button);
        previous = button;
    }
}

void ReorderableColumn::focusChanged(QWidget* focus)
{
    if (focus != m_movedRow)
        dropMovedRow();
    for (; focus && focus != m_stack; focus = focus->parentWidget()) {
        if (focus->parentWidget() == m_stack && focus != m_currentRow)
            setCurrentRow(qobject_cast<ReorderableRow*>(focus));
    }
}

void ReorderableColumn::scrollToRow(int index)
{
    const QRect rect = m_stack->rowRect(index);
    ensureVisible(rect.left(), rect.center().y(), 0, rect.height() / 2);
}

} // namespace tarnwick
