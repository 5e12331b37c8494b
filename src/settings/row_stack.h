// SPDX-License-Identifier: MIT
#pragma once

#include <QVariantAnimation>
#include <QWidget>

#include <map>
#include <vector>

namespace tarnwick {

class ReorderableRow;

/// Rows of one height, one under the other. Rows that stay slide to their new places; whoever asks
/// where a row is hears at once where it is going to be.
class RowStack : public QWidget
{
    Q_OBJECT

public:
    explicit RowStack(QWidget* parent = nullptr);

    [[nodiscard]] const std::vector<ReorderableRow*>& rows() const { return m_rows; }
    /// Takes the rows as its children, and deletes those it had that are not among them.
    void setRows(std::vector<ReorderableRow*> rows);

    [[nodiscard]] int indexOf(const QWidget* row) const;
    /// Null where there is none.
    [[nodiscard]] ReorderableRow* rowAt(int y) const;
    [[nodiscard]] QRect placeOf(int index) const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeRows();

    std::vector<ReorderableRow*> m_rows;
    int m_rowHeight = 1;
    QVariantAnimation m_slide;
    /// Where the rows that are on their way came from.
    std::map<const QWidget*, int> m_origins;
};

} // namespace tarnwick
