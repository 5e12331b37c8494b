// SPDX-License-Identifier: MIT
#include "settings/list_accessible.h"

#include "settings/reorderable_row.h"
#include "settings/row_stack.h"

#include <QAccessibleWidget>

namespace tarnwick {

namespace {

/// The rows from top to bottom, which is not the order in which they became children.
class RowStackAccessible : public QAccessibleWidget
{
public:
    explicit RowStackAccessible(RowStack* stack)
        : QAccessibleWidget(stack, QAccessible::List)
    {}

    int childCount() const override { return static_cast<int>(rows().size()); }
    QAccessibleInterface* child(int index) const override
    {
        return index >= 0 && index < childCount()
                   ? QAccessible::queryAccessibleInterface(rows()[static_cast<std::size_t>(index)])
                   : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child ? stack().indexOf(qobject_cast<QWidget*>(child->object())) : -1;
    }

private:
    const RowStack& stack() const { return *static_cast<RowStack*>(widget()); }
    const std::vector<ReorderableRow*>& rows() const { return stack().rows(); }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    if (auto* const row = qobject_cast<ReorderableRow*>(object))
        return new QAccessibleWidget(row, QAccessible::ListItem);
    if (auto* const stack = qobject_cast<RowStack*>(object))
        return new RowStackAccessible(stack);
    return nullptr;
}

} // namespace

void installListAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace tarnwick
