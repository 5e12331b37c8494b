// SPDX-License-Identifier: MIT
#include "settings/reorder/row_stack.h"

#include "settings/reorder/reorderable_row.h"

#include <QAccessibleWidget>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace tarnwick {

namespace {

constexpr int margin = 4;
constexpr std::chrono::milliseconds animationDuration(180);

/// Lists the rows in their order, which is not that in which they became children.
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

QAccessibleInterface* createAccessible(const QString&, QObject* object)
{
    if (auto* const row = qobject_cast<ReorderableRow*>(object))
        return new QAccessibleWidget(row, QAccessible::ListItem);
    if (auto* const stack = qobject_cast<RowStack*>(object))
        return new RowStackAccessible(stack);
    return nullptr;
}

} // namespace

RowStack::RowStack(QWidget* parent)
    : QWidget(parent)
{
    QAccessible::installFactory(createAccessible); // once, however often it is called
    m_animation.setStartValue(0.0);
    m_animation.setEndValue(1.0);
    m_animation.setDuration(static_cast<int>(animationDuration.count()));
    m_animation.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_animation, &QVariantAnimation::valueChanged, this, &RowStack::layoutRows);
}

void RowStack::setRows(std::vector<ReorderableRow*> rows)
{
    if (rows == m_rows)
        return;
    m_startY.clear();
    for (ReorderableRow* const row : m_rows) {
        m_startY[row] = row->y();
        if (std::ranges::find(rows, row) == rows.end()) {
            row->hide();
            row->deleteLater();
        }
    }
    m_rows = std::move(rows);
    if (!m_rows.empty())
        m_rowHeight = m_rows.front()->sizeHint().height();
    setMinimumHeight(static_cast<int>(m_rows.size()) * m_rowHeight + 2 * margin);
    m_animation.stop();
    if (isVisible())
        m_animation.start();
    else
        m_startY.clear();
    layoutRows();
    for (ReorderableRow* const row : m_rows) {
        if (row->parentWidget() != this)
            row->setParent(this);
        row->show();
    }
}

int RowStack::indexOf(const QWidget* row) const
{
    const auto found = std::ranges::find(m_rows, row);
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

ReorderableRow* RowStack::rowAt(int y) const
{
    const int index = y < margin ? -1 : (y - margin) / m_rowHeight;
    return index >= 0 && index < static_cast<int>(m_rows.size())
               ? m_rows[static_cast<std::size_t>(index)]
               : nullptr;
}

QRect RowStack::rowRect(int index) const
{
    return {margin, margin + index * m_rowHeight, width() - 2 * margin, m_rowHeight};
}

void RowStack::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layoutRows();
}

void RowStack::layoutRows()
{
    const double progress = m_animation.state() == QAbstractAnimation::Running
                                ? m_animation.currentValue().toDouble()
                                : 1.0;
    int index = 0;
    for (ReorderableRow* const row : m_rows) {
        QRect rect = rowRect(index++);
        const auto start = m_startY.find(row);
        if (start != m_startY.end()) {
            const double remaining = (start->second - rect.top()) * (1.0 - progress);
            rect.translate(0, static_cast<int>(std::lround(remaining)));
        }
        row->setGeometry(rect);
    }
}

} // namespace tarnwick
