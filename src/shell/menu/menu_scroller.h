// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

class QMenu;
class QWheelEvent;

namespace tarnwick {

class ScrollArrow;

/// Scrolls a menu that is lower than its rows: by pixels with the wheel, steadily while the pointer
/// rests on one of the two arrows it lays over the ends, and to a given row. The rows follow
/// through the menu's top margin, which becomes negative.
class MenuScroller : public QObject
{
    Q_OBJECT

public:
    /// The menu outlives it and owns the arrows.
    explicit MenuScroller(QMenu& menu);

    /// The number of pixels hidden above the upper edge.
    [[nodiscard]] int offset() const { return m_offset; }
    /// Takes the height of all rows; keeps the offset as far as they allow.
    void fit(int contentHeight);
    void scrollTo(int offset);
    void scroll(const QWheelEvent& wheel);
    void reveal(const QRect& row);

    /// Tells where the pointer is, in the menu; returns whether it is over an arrow.
    bool hover(QPoint position);
    void stop() { m_timer.stop(); }

Q_SIGNALS:
    void scrolled();

private:
    void placeArrows();

    QMenu& m_menu;
    ScrollArrow* m_up;
    ScrollArrow* m_down;
    QTimer m_timer;
    int m_direction = 0;
    int m_offset = 0;
    int m_contentHeight = 0;
    qreal m_wheelRest = 0;
};

} // namespace tarnwick
