// SPDX-License-Identifier: MIT
#pragma once

#include <QVariantAnimation>
#include <QWidget>

#include <map>
#include <vector>

namespace tarnwick {

class ReorderableRow;

/// Lays out rows of equal height from top to bottom and animates their moves. Geometry queries
/// return final positions, also while an animation runs. To assistive technology it is a list of
/// the rows in their order.
class RowStack : public QWidget
{
    Q_OBJECT

public:
    explicit RowStack(QWidget* parent = nullptr);

    [[nodiscard]] const std::vector<ReorderableRow*>& rows() const { return m_rows; }
    /// Owns the rows, and deletes former rows that are not among them.
    void setRows(std::vector<ReorderableRow*> rows);

    /// -1 if it is not one of the rows.
    [[nodiscard]] int indexOf(const QWidget* row) const;
    /// Null if there is none.
    [[nodiscard]] ReorderableRow* rowAt(int y) const;
    [[nodiscard]] QRect rowRect(int index) const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void layoutRows();

    std::vector<ReorderableRow*> m_rows;
    int m_rowHeight = 1;
    QVariantAnimation m_animation;
    /// Where rows stood when the animation started.
    std::map<const QWidget*, int> m_startY;
};

} // namespace tarnwick
