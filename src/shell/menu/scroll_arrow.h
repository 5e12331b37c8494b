// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QMenu;

namespace tarnwick {

/// A strip over one end of a menu, drawn like the menu's own panel, that points at hidden rows.
class ScrollArrow : public QWidget
{
    Q_OBJECT

public:
    /// `menu` becomes the parent.
    ScrollArrow(Qt::ArrowType direction, QMenu& menu);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    const Qt::ArrowType m_direction;
};

} // namespace tarnwick
