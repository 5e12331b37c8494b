// SPDX-License-Identifier: MIT
#pragma once

#include "settings/reorder/reorderable_column.h"
#include "settings/reorder/reorderable_row.h"

#include <QHash>
#include <QString>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace tarnwick {

/// The state of a list that is reordered by dragging, independent of widgets. Items are compared
/// with `==` and hashed with `qHash`; of equal items in the array, the first one moves.
///
/// The array changes while the drag moves over the rows, and is committed by a drop on one of them.
/// A drag that ends elsewhere leaves the new order uncommitted and the moved item marked.
template <typename Item>
class ReorderableForEach
{
public:
    using Items = std::vector<Item>;

    /// Access to the array, which its owner stores.
    struct Data
    {
        std::function<Items()> get;
        std::function<void(Items)> set;
        /// Sets the array and saves it.
        std::function<void(Items)> commit;
    };

    /// Handles drags over the row of `item`. The list outlives it.
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
        // Unused: the array may change between two events, so each looks up its own indices.
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

    /// To be called when a drag of the item's row starts. Returns the text of the drag; the drop
    /// does not read it.
    QString onDrag(const Item& item)
    {
        draggedItem = item;
        return QString::number(qHash(item));
    }

    /// Null while reordering is not allowed.
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

/// Shows the rows of an array that the user can reorder. A row is reused as long as the array has
/// an item equal to the one it was created for.
template <typename Item>
class ReorderableList : public ReorderableColumn
{
public:
    /// Creates the row of an item. The column takes ownership.
    using Content = std::function<ReorderableRow*(const Item&)>;

    ReorderableList(typename ReorderableForEach<Item>::Data array,
                    std::function<bool()> allowReordering, Content content,
                    QWidget* parent = nullptr)
        : ReorderableColumn(parent)
        , m_forEach(std::move(array), std::move(allowReordering))
        , m_content(std::move(content))
    {
        connect(this, &ReorderableColumn::dragStateChanged, this, [this] { updateDraggedRows(); });
        reload();
    }

    /// Must be called after each change of the array.
    void reload()
    {
        std::vector<std::pair<Item, ReorderableRow*>> previous;
        for (std::size_t i = 0; i < m_items.size(); ++i)
            previous.emplace_back(m_items[i], rows()[i]);

        m_items = m_forEach.data.get();
        std::vector<ReorderableRow*> newRows;
        for (const Item& item : m_items) {
            const auto same =
                std::ranges::find(previous, item, &decltype(previous)::value_type::first);
            if (same == previous.end()) {
                newRows.push_back(m_content(item));
            } else {
                newRows.push_back(same->second);
                previous.erase(same);
            }
            newRows.back()->setReordering(dragSource(item), m_forEach.dropDelegate(item));
        }
        setRows(std::move(newRows));
        updateDraggedRows();
    }

private:
    [[nodiscard]] ReorderableRow::DragSource dragSource(const Item& item)
    {
        if (!m_forEach.allowReordering())
            return {};
        return [this, item] { return m_forEach.onDrag(item); };
    }

    void updateDraggedRows()
    {
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            const bool isDragged = m_forEach.isDragged(m_items[i]);
            rows()[i]->setDragged(isDragged);
            if (isDragged)
                rows()[i]->raise();
        }
    }

    ReorderableForEach<Item> m_forEach;
    const Content m_content;
    /// The items of the current rows.
    std::vector<Item> m_items;
};

} // namespace tarnwick
