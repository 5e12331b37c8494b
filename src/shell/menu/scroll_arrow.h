// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QPainter;

namespace tarnwick {

/// Fills a widget with what the style draws behind the entries of a menu.
void drawMenuBackground(QPainter& painter, const QWidget& widget);

/// A strip over one end of the rows that points at hidden ones. It hides what it covers, and a
/// press on it reaches nothing.
class ScrollArrow : public QWidget
{
    Q_OBJECT

public:
    ScrollArrow(Qt::ArrowType direction, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const Qt::ArrowType m_direction;
};

} // namespace tarnwick
