// SPDX-License-Identifier: MIT
#include "settings/row_stack.h"

#include "settings/reorderable_row.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {

namespace {

constexpr int inset = 4;
constexpr int slideMilliseconds = 180;

} // namespace

RowStack::RowStack(QWidget* parent)
    : QWidget(parent)
{
    m_slide.setStartValue(0.0);
    m_slide.setEndValue(1.0);
    m_slide.setDuration(slideMilliseconds);
    m_slide.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_slide, &QVariantAnimation::valueChanged, this, &RowStack::placeRows);
}

void RowStack::setRows(std::vector<ReorderableRow*> rows)
{
    if (rows == m_rows)
        return;
    m_origins.clear();
    for (ReorderableRow* const row : m_rows) {
        m_origins[row] = row->y();
        if (std::ranges::find(rows, row) == rows.end()) {
            row->hide();
            row->deleteLater();
        }
    }
    m_rows = std::move(rows);
    if (!m_rows.empty())
        m_rowHeight = m_rows.front()->sizeHint().height();
    setMinimumHeight(static_cast<int>(m_rows.size()) * m_rowHeight + 2 * inset);
    m_slide.stop();
    if (isVisible())
        m_slide.start();
    else
        m_origins.clear();
    placeRows();
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
    const int index = y < inset ? -1 : (y - inset) / m_rowHeight;
    return index >= 0 && index < static_cast<int>(m_rows.size())
               ? m_rows[static_cast<std::size_t>(index)]
               : nullptr;
}

QRect RowStack::placeOf(int index) const
{
    return {inset, inset + index * m_rowHeight, width() - 2 * inset, m_rowHeight};
}

void RowStack::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeRows();
}

void RowStack::placeRows()
{
    const double progress =
        m_slide.state() == QAbstractAnimation::Running ? m_slide.currentValue().toDouble() : 1.0;
    int index = 0;
    for (ReorderableRow* const row : m_rows) {
        QRect place = placeOf(index++);
        const auto origin = m_origins.find(row);
        if (origin != m_origins.end()) {
            const double rest = (origin->second - place.top()) * (1.0 - progress);
            place.translate(0, static_cast<int>(std::lround(rest)));
        }
        row->setGeometry(place);
    }
}

} // namespace tarnwick
