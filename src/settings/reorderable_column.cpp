// SPDX-License-Identifier: MIT
#include "settings/reorderable_column.h"

#include "settings/reorderable_row.h"
#include "settings/row_drop_target.h"
#include "settings/row_stack.h"

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
            [this](QWidget* /*old*/, QWidget* now) { followFocus(now); });
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
    const int current = m_stack->indexOf(m_current);
    const bool hadFocus =
        m_current && window()->focusWidget() &&
        (m_current == window()->focusWidget() || m_current->isAncestorOf(window()->focusWidget()));
    m_stack->setRows(std::move(rows));
    if (m_stack->indexOf(m_current) >= 0)
        return;
    const int last = static_cast<int>(m_stack->rows().size()) - 1;
    const int neighbour = std::clamp(current, 0, std::max(0, last));
    makeCurrent(last < 0 ? nullptr : m_stack->rows()[static_cast<std::size_t>(neighbour)]);
    if (hadFocus && m_current)
        focusRow(neighbour);
}

ReorderableRow* ReorderableColumn::rowAt(int viewportY) const
{
    return m_stack->rowAt(m_stack->mapFrom(viewport(), QPoint(0, viewportY)).y());
}

void ReorderableColumn::keyPressEvent(QKeyEvent* event)
{
    const int last = static_cast<int>(m_stack->rows().size()) - 1;
    const int focused = m_stack->indexOf(window()->focusWidget());
    if (focused < 0 || (event->key() != Qt::Key_Up && event->key() != Qt::Key_Down)) {
        QScrollArea::keyPressEvent(event);
        return;
    }
    const int next = std::clamp(focused + (event->key() == Qt::Key_Up ? -1 : 1), 0, last);
    if (next == focused)
        return;
    if ((event->modifiers() & Qt::AltModifier) != 0)
        moveRow(focused, next);
    else
        focusRow(next);
}

void ReorderableColumn::mousePressEvent(QMouseEvent* event)
{
    m_pressPosition = event->position().toPoint();
    m_pressed = event->button() == Qt::LeftButton ? rowAt(m_pressPosition.y()) : nullptr;
}

void ReorderableColumn::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint way = event->position().toPoint() - m_pressPosition;
    if (!m_pressed || way.manhattanLength() < QApplication::startDragDistance())
        return;
    ReorderableRow& row = *std::exchange(m_pressed, nullptr);
    if (row.dragSource())
        startDrag(row, row.mapFrom(viewport(), m_pressPosition));
}

void ReorderableColumn::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    m_pressed = nullptr;
}

void ReorderableColumn::startDrag(ReorderableRow& row, QPoint grip)
{
    auto* const drag = new QDrag(this);
    // The window may be closed during the drag, which must not take the running drag along.
    drag->setParent(nullptr);
    drag->setPixmap(row.grab());
    drag->setHotSpot(grip);
    auto* const payload = new QMimeData;
    payload->setText(row.dragSource()());
    drag->setMimeData(payload);
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
    const ReorderableRow& row = *rows[static_cast<std::size_t>(from)];
    const auto delegate = rows[static_cast<std::size_t>(to)]->dropDelegate();
    if (!row.dragSource() || !delegate)
        return;
    row.dragSource()();
    delegate->dropEntered();
    delegate->performDrop();
    Q_EMIT dragStateChanged();
    scrollTo(to);
}

void ReorderableColumn::focusRow(int index)
{
    m_stack->rows()[static_cast<std::size_t>(index)]->setFocus(Qt::TabFocusReason);
    scrollTo(index);
}

void ReorderableColumn::makeCurrent(ReorderableRow* row)
{
    if (m_current)
        m_current->setCurrent(false);
    m_current = row;
    if (!row)
        return;
    row->setCurrent(true);
    // Qt puts nothing behind a widget that takes no focus.
    setFocusPolicy(Qt::TabFocus);
    setTabOrder(this, row);
    setFocusPolicy(Qt::NoFocus);
    QWidget* previous = row;
    for (QAbstractButton* const button : row->findChildren<QAbstractButton*>()) {
        setTabOrder(previous, button);
        previous = button;
    }
}

void ReorderableColumn::followFocus(QWidget* focus)
{
    for (; focus && focus != m_stack; focus = focus->parentWidget()) {
        if (focus->parentWidget() == m_stack && focus != m_current)
            makeCurrent(qobject_cast<ReorderableRow*>(focus));
    }
}

void ReorderableColumn::scrollTo(int index)
{
    const QRect place = m_stack->placeOf(index);
    ensureVisible(place.left(), place.center().y(), 0, place.height() / 2);
}

} // namespace tarnwick
