// SPDX-License-Identifier: MIT
#pragma once

#include "settings/drop_delegate.h"

#include <QHash>
#include <QString>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tarnwick {

/// What a list that is reordered by dragging knows of its drag, apart from any widget. Items are
/// compared by `==` and hashed by `qHash`; of equal items in the array, the first one moves.
///
/// The array changes while the drag passes over the rows, and is committed when it is dropped on
/// one. A drag that ends elsewhere leaves the new order uncommitted and the moved item marked.
template <typename Item>
class ReorderableForEach
{
public:
    using Items = std::vector<Item>;

    /// The array, which lives with its owner.
    struct Data
    {
        std::function<Items()> get;
        std::function<void(Items)> set;
        /// Sets the array and keeps it for good.
        std::function<void(Items)> commit;
    };

    /// What the row of `item` makes of a drag. The list outlives it.
    struct ReorderDropDelegate : DropDelegate
    {
        explicit ReorderDropDelegate(Item rowItem, ReorderableForEach& list)
            : item(std::move(rowItem))
            , data(list.data)
            , draggedItem(list.draggedItem)
            , hasChangedLocation(list.hasChangedLocation)
        {}

        bool performDrop() override;
        void dropEntered() override;
        Qt::DropAction dropUpdated() override { return Qt::MoveAction; }

        const Item item;
        const Data& data;
        std::optional<Item>& draggedItem;
        bool& hasChangedLocation;
        // Unused: the array may change between two events, so each looks up its own places.
        std::optional<int> fromIndex;
        std::optional<int> toIndex;
    };

    ReorderableForEach(Data array, std::function<bool()> isReorderingAllowed)
        : data(std::move(array))
        , allowReordering(std::move(isReorderingAllowed))
    {}

    [[nodiscard]] bool isDragged(const Item& item) const
    {
        return allowReordering() && hasChangedLocation && draggedItem == item;
    }

    /// The user starts dragging the item's row. Returns the text that the drag carries, which
    /// nobody reads.
    QString onDrag(const Item& item)
    {
        draggedItem = item;
        return QString::number(qHash(item));
    }

    /// None while reordering is not allowed.
    [[nodiscard]] std::shared_ptr<DropDelegate> dropDelegate(const Item& item)
    {
        return allowReordering() ? std::make_shared<ReorderDropDelegate>(item, *this) : nullptr;
    }

    const Data data;
    const std::function<bool()> allowReordering;
    std::optional<Item> draggedItem;
    /// Whether the dragged item has moved during the current drag.
    bool hasChangedLocation = false;
};

template <typename Item>
bool ReorderableForEach<Item>::ReorderDropDelegate::performDrop()
{
    data.commit(data.get());
    hasChangedLocation = false;
    draggedItem.reset();
    return true;
}

template <typename Item>
void ReorderableForEach<Item>::ReorderDropDelegate::dropEntered()
{
    if (!draggedItem || *draggedItem == item)
        return;
    Items items = data.get();
    const auto from = std::ranges::find(items, *draggedItem);
    const auto to = std::ranges::find(items, item);
    if (from == items.end() || to == items.end())
        return;
    hasChangedLocation = true;
    if (from < to)
        std::rotate(from, from + 1, to + 1);
    else
        std::rotate(to, from, from + 1);
    data.set(std::move(items));
}

} // namespace tarnwick
