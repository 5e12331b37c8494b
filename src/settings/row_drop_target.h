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

/// Tells the rows of a column of the drags of plain text over them, and scrolls the column while a
/// drag rests near its upper or lower edge.
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
    void move(QDragMoveEvent& event);
    void drop(QDropEvent& event);
    void leave();
    void enter(ReorderableRow* row);
    void scroll();

    ReorderableColumn& m_column;
    QPointer<ReorderableRow> m_entered;
    QTimer m_scrolling;
    int m_pointerY = 0;
};

} // namespace tarnwick
