// SPDX-License-Identifier: MIT
#pragma once

#include "settings/reorderable_column.h"
#include "settings/reorderable_for_each.h"
#include "settings/reorderable_row.h"

#include <algorithm>
#include <utility>

namespace tarnwick {

/// The rows of an array, which the user reorders by dragging. Rows are kept as long as their items
/// are in the array, whatever their order and even if equal items have replaced them.
template <typename Item>
class ReorderableList : public ReorderableColumn
{
public:
    /// Makes the row of an item. The column takes it over.
    using Content = std::function<ReorderableRow*(const Item&)>;

    ReorderableList(typename ReorderableForEach<Item>::Data array,
                    std::function<bool()> allowReordering, Content content,
                    QWidget* parent = nullptr)
        : ReorderableColumn(parent)
        , m_forEach(std::move(array), std::move(allowReordering))
        , m_content(std::move(content))
    {
        connect(this, &ReorderableColumn::dragStateChanged, this, [this] { markRows(); });
        reload();
    }

    /// To be called after each change of the array.
    void reload()
    {
        std::vector<std::pair<Item, ReorderableRow*>> kept;
        for (std::size_t i = 0; i < m_items.size(); ++i)
            kept.emplace_back(m_items[i], rows()[i]);

        m_items = m_forEach.data.get();
        std::vector<ReorderableRow*> newRows;
        for (const Item& item : m_items) {
            const auto same = std::ranges::find(kept, item, &decltype(kept)::value_type::first);
            if (same == kept.end()) {
                newRows.push_back(m_content(item));
            } else {
                newRows.push_back(same->second);
                kept.erase(same);
            }
            newRows.back()->setReordering(dragSource(item), m_forEach.dropDelegate(item));
        }
        setRows(std::move(newRows));
        markRows();
    }

private:
    [[nodiscard]] ReorderableRow::DragSource dragSource(const Item& item)
    {
        if (!m_forEach.allowReordering())
            return {};
        return [this, item] { return m_forEach.onDrag(item); };
    }

    void markRows()
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
    /// What the rows show.
    std::vector<Item> m_items;
};

} // namespace tarnwick
