// SPDX-License-Identifier: MIT
#include "shell/menu/row_column.h"

#include "shell/menu/hosted_row.h"
#include "shell/menu/scroll_arrow.h"
#include "views/colors.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;

constexpr auto scrollInterval = 20ms;
constexpr int scrollStep = 16;
constexpr int wheelStep = 20;

class Separator : public QWidget
{
public:
    Separator() { setFixedHeight(3); }

    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter(this).fillRect(QRect(0, 1, width(), 1), separatorColor(palette()));
    }
};

} // namespace

RowColumn::RowColumn(QWidget* parent)
    : QScrollArea(parent)
    , m_up(new ScrollArrow(Qt::UpArrow, this))
    , m_down(new ScrollArrow(Qt::DownArrow, this))
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setSingleStep(wheelStep);

    auto* const content = new QWidget;
    m_layout = new QVBoxLayout(content);
    m_layout->setContentsMargins({});
    m_layout->setSpacing(0);
    content->installEventFilter(this);
    setWidget(content);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);

    m_timer.setInterval(scrollInterval);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + m_direction * scrollStep);
    });
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &RowColumn::placeArrows);
}

void RowColumn::addRow(HostedRow* row)
{
    m_rows.append(row);
    append(row);
}

void RowColumn::addSeparator()
{
    append(new Separator);
}

HostedRow* RowColumn::rowAt(QPoint position) const
{
    if (!viewport()->geometry().contains(position))
        return nullptr;
    const auto found = std::ranges::find_if(
        m_rows, [&](const HostedRow* row) { return areaOf(*row).contains(position); });
    return found == m_rows.end() ? nullptr : *found;
}

QRect RowColumn::areaOf(const QWidget& widget) const
{
    return {widget.mapTo(this, QPoint()), widget.size()};
}

void RowColumn::reveal(const QWidget& widget)
{
    const QPoint middle = widget.mapTo(this->widget(), widget.rect().center());
    ensureVisible(middle.x(), middle.y(), 0, widget.height() / 2 + m_up->height());
}

void RowColumn::scrollToTop()
{
    verticalScrollBar()->setValue(0);
}

bool RowColumn::hoverArrow(QPoint position)
{
    const auto covers = [position](const QWidget& arrow) {
        return !arrow.isHidden() && arrow.geometry().contains(position);
    };
    m_direction = covers(*m_up) ? -1 : covers(*m_down) ? 1 : 0;
    if (m_direction == 0)
        m_timer.stop();
    else if (!m_timer.isActive())
        m_timer.start();
    return m_direction != 0;
}

void RowColumn::stopScrolling()
{
    m_timer.stop();
}

void RowColumn::prepareToShow()
{
    widget()->resize(width(), sizeHint().height());
    m_layout->activate();
    showItemsInView();
}

QSize RowColumn::sizeHint() const
{
    const QSize hint = m_layout->sizeHint();
    return m_layout->hasHeightForWidth()
               ? QSize(hint.width(), m_layout->heightForWidth(hint.width()))
               : hint;
}

bool RowColumn::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        resizeContent();
        showItemsInView();
        Q_EMIT sizeHintChanged();
    }
    return QScrollArea::eventFilter(watched, event);
}

void RowColumn::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    resizeContent();
    placeArrows();
    showItemsInView();
}

void RowColumn::scrollContentsBy(int dx, int dy)
{
    QScrollArea::scrollContentsBy(dx, dy);
    placeArrows();
    showItemsInView();
    Q_EMIT scrolled();
}

void RowColumn::resizeContent()
{
    // A resizable content would be squeezed to its minimum size before it scrolls.
    widget()->resize(viewport()->width(), sizeHint().height());
}

void RowColumn::append(QWidget* item)
{
    QSizePolicy policy = item->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    item->setSizePolicy(policy);
    m_layout->addWidget(item);
}

/// To show and hide the widgets of hundreds of rows takes longer than all else that opening a menu
/// does.
void RowColumn::showItemsInView()
{
    const QRect seen(-widget()->pos(), size());
    for (int i = 0; i < m_layout->count(); ++i) {
        QWidget& item = *m_layout->itemAt(i)->widget();
        const auto* const row = qobject_cast<const HostedRow*>(&item);
        // The controls of a row without a submenu are reached by keys wherever the row is.
        const bool hasControls = row && !row->hasSubmenu();
        const bool isShown = hasControls || seen.intersects(item.geometry());
        if (item.isHidden() == isShown)
            item.setVisible(isShown);
    }
}

void RowColumn::placeArrows()
{
    const QScrollBar& bar = *verticalScrollBar();
    const QSize size(width(), m_up->sizeHint().height());
    m_up->setGeometry(QRect({0, 0}, size));
    m_down->setGeometry(QRect({0, height() - size.height()}, size));
    m_up->setVisible(bar.value() > bar.minimum());
    m_down->setVisible(bar.value() < bar.maximum());
    if ((m_direction < 0 && m_up->isHidden()) || (m_direction > 0 && m_down->isHidden()))
        m_timer.stop();
    m_up->raise();
    m_down->raise();
}

} // namespace tarnwick
