// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

#include <functional>
#include <memory>
#include <utility>

namespace tarnwick {

/// Handles drags of plain text over one row. The default implementations accept every drag and do
/// nothing.
class DropDelegate
{
public:
    virtual ~DropDelegate() = default;

    [[nodiscard]] virtual bool validateDrop() { return true; }
    /// Returns false if the drop is rejected.
    virtual bool performDrop() = 0;
    virtual void dropEntered() {}
    /// The action proposed while the drag is over the row.
    [[nodiscard]] virtual Qt::DropAction dropUpdated() { return Qt::CopyAction; }
    virtual void dropExited() {}
};

/// Base class of the rows of a list that can be reordered. Derived classes paint the row.
class ReorderableRow : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Starts a drag and returns its text. Empty if the row cannot be dragged.
    using DragSource = std::function<QString()>;

    virtual void setDragged(bool isDragged) = 0;

    [[nodiscard]] const DragSource& dragSource() const { return m_dragSource; }
    /// Null if the row accepts no drops. Keep the pointer during a call: the row may get another
    /// delegate meanwhile.
    [[nodiscard]] std::shared_ptr<DropDelegate> dropDelegate() const { return m_dropDelegate; }
    void setReordering(DragSource dragSource, std::shared_ptr<DropDelegate> dropDelegate)
    {
        m_dragSource = std::move(dragSource);
        m_dropDelegate = std::move(dropDelegate);
    }

    /// Only the current row and its buttons are in the tab order.
    void setCurrent(bool isCurrent)
    {
        setFocusPolicy(isCurrent ? Qt::StrongFocus : Qt::ClickFocus);
        for (QAbstractButton* const button : findChildren<QAbstractButton*>())
            button->setFocusPolicy(isCurrent ? Qt::TabFocus : Qt::NoFocus);
    }

private:
    DragSource m_dragSource;
    std::shared_ptr<DropDelegate> m_dropDelegate;
};

} // namespace tarnwick
