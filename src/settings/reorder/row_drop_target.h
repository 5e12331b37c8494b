// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

class QDragMoveEvent;
class QDropEvent;

namespace tarnwick {

class ReorderableColumn;
class ReorderableRow;

/// Forwards the drag events of a column's viewport to the drop delegates of its rows, and scrolls
/// the column while a drag stays near its upper or lower edge.
class RowDropTarget : public QObject
{
    Q_OBJECT

public:
    /// A child of the column.
    explicit RowDropTarget(ReorderableColumn& column);

Q_SIGNALS:
    void dropped();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void dragMoved(QDragMoveEvent& event);
    void dragLeft();
    void drop(QDropEvent& event);
    void setTargetRow(ReorderableRow* row);
    void autoScroll();

    ReorderableColumn& m_column;
    QPointer<ReorderableRow> m_targetRow;
    QTimer m_autoScrollTimer;
    int m_pointerY = 0;
};

} // namespace tarnwick
