// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QScrollArea>

#include <vector>

namespace tarnwick {

class ReorderableRow;
class RowStack;

/// A scrolling column of rows that can be moved: by dragging, or with Alt and the navigation keys,
/// which without Alt move the focus. It calls the rows' drag sources and drop delegates, which make
/// the moves. A row moved with keys is dropped when they are released, or when it loses the focus.
class ReorderableColumn : public QScrollArea
{
    Q_OBJECT

public:
    explicit ReorderableColumn(QWidget* parent = nullptr);
    ~ReorderableColumn() override;

    [[nodiscard]] const std::vector<ReorderableRow*>& rows() const;
    /// Owns the rows, and deletes former rows that are not among them. Remaining rows keep the
    /// focus; that of a deleted row moves to its neighbour.
    void setRows(std::vector<ReorderableRow*> rows);
    /// `y` is a viewport coordinate. Null if there is no row.
    [[nodiscard]] ReorderableRow* rowAt(int y) const;

Q_SIGNALS:
    /// A drag was started or dropped.
    void dragStateChanged();

protected:
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void startDrag(ReorderableRow& row, QPoint hotSpot);
    void moveRow(int from, int to);
    void dropMovedRow();
    void focusRow(int index);
    void setCurrentRow(ReorderableRow* row);
    void focusChanged(QWidget* focus);
    void scrollToRow(int index);

    RowStack* const m_stack;
    QPointer<ReorderableRow> m_currentRow;
    QPointer<ReorderableRow> m_pressedRow;
    /// The row that is being moved with keys.
    QPointer<ReorderableRow> m_movedRow;
    QPoint m_pressPosition;
    bool m_isDragging = false;
};

} // namespace tarnwick
