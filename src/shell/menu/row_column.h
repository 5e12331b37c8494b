// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>
#include <QTimer>

class QVBoxLayout;

namespace tarnwick {

class HostedRow;
class ScrollArrow;

/// The rows of a status menu, one below the other with separators between them. Where they are
/// higher than the menu can be, it scrolls: with the wheel, to a given place, and while the pointer
/// rests on one of the two arrows that lie over its ends.
class RowColumn : public QScrollArea
{
    Q_OBJECT

public:
    explicit RowColumn(QWidget* parent);

    /// Owns the row.
    void addRow(HostedRow* row);
    void addSeparator();
    [[nodiscard]] const QList<HostedRow*>& rows() const { return m_rows; }

    /// The row at a point of the column that no arrow covers; none beside and between the rows.
    [[nodiscard]] HostedRow* rowAt(QPoint position) const;
    /// Where a widget of a row lies in the column; it may lie outside what is visible.
    [[nodiscard]] QRect areaOf(const QWidget& widget) const;

    /// Scrolls no further than it must to show the widget, clear of the arrows.
    void reveal(const QWidget& widget);
    void scrollToTop();
    /// Tells where the pointer is; scrolls while that is on an arrow, and returns whether it is.
    bool hoverArrow(QPoint position);
    void stopScrolling();

    /// Lays out what a hidden column shows when it is shown in its present size.
    void prepareToShow();

    /// The size of all rows.
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// A row wants another size.
    void sizeHintChanged();
    void scrolled();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void append(QWidget* item);
    void resizeContent();
    void placeArrows();
    void showItemsInView();

    QVBoxLayout* m_layout;
    QList<HostedRow*> m_rows;
    ScrollArrow* m_up;
    ScrollArrow* m_down;
    QTimer m_timer;
    int m_direction = 0;
};

} // namespace tarnwick
