// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QScrollArea>

#include <vector>

namespace tarnwick {

class ReorderableRow;
class RowStack;

/// A scrolling column of rows that the user moves by the pointer or by the keyboard: the arrow keys
/// move the focus, and with the Alt key the focused row. What a move does is the rows' affair; this
/// is the hands of the list.
class ReorderableColumn : public QScrollArea
{
    Q_OBJECT

public:
    explicit ReorderableColumn(QWidget* parent = nullptr);
    ~ReorderableColumn() override;

    [[nodiscard]] const std::vector<ReorderableRow*>& rows() const;
    /// Owns the rows, and deletes those it had that are not among them. Rows that stay slide to
    /// their new places and keep the focus; that of a row that goes passes to its neighbour.
    void setRows(std::vector<ReorderableRow*> rows);
    /// The row at a height in the viewport; null where there is none.
    [[nodiscard]] ReorderableRow* rowAt(int viewportY) const;

Q_SIGNALS:
    /// A row was picked up or dropped.
    void dragStateChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void startDrag(ReorderableRow& row, QPoint grip);
    void moveRow(int from, int to);
    void focusRow(int index);
    void makeCurrent(ReorderableRow* row);
    void followFocus(QWidget* focus);
    void scrollTo(int index);

    RowStack* const m_stack;
    QPointer<ReorderableRow> m_current;
    QPointer<ReorderableRow> m_pressed;
    QPoint m_pressPosition;
    bool m_isDragging = false;
};

} // namespace tarnwick
