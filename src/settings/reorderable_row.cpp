// SPDX-License-Identifier: MIT
#include "settings/reorderable_row.h"

#include <QAbstractButton>

namespace tarnwick {

void ReorderableRow::setReordering(DragSource dragSource,
                                   std::shared_ptr<DropDelegate> dropDelegate)
{
    m_dragSource = std::move(dragSource);
    m_dropDelegate = std::move(dropDelegate);
}

void ReorderableRow::setCurrent(bool isCurrent)
{
    setFocusPolicy(isCurrent ? Qt::StrongFocus : Qt::ClickFocus);
    for (QAbstractButton* const button : findChildren<QAbstractButton*>())
        button->setFocusPolicy(isCurrent ? Qt::TabFocus : Qt::NoFocus);
}

} // namespace tarnwick
