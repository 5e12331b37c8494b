// SPDX-License-Identifier: MIT
#pragma once

#include "settings/drop_delegate.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace tarnwick {

/// One row of a list that can be reordered. How it looks, also while it is marked as dragged, is
/// decided by who derives from it.
class ReorderableRow : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Starts a drag and returns the text that it carries. None where the row cannot be dragged.
    using DragSource = std::function<QString()>;

    virtual void setDragged(bool isDragged) = 0;

    [[nodiscard]] const DragSource& dragSource() const { return m_dragSource; }
    /// Whoever calls the delegate holds it: the row may be given another one meanwhile.
    [[nodiscard]] std::shared_ptr<DropDelegate> dropDelegate() const { return m_dropDelegate; }
    void setReordering(DragSource dragSource, std::shared_ptr<DropDelegate> dropDelegate);

    /// Of all rows, the tab key reaches only the current one and the buttons in it.
    void setCurrent(bool isCurrent);

private:
    DragSource m_dragSource;
    std::shared_ptr<DropDelegate> m_dropDelegate;
};

} // namespace tarnwick
