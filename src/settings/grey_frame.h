// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tarnwick {

/// A container that draws a grey border, one pixel wide, around its content.
class GreyFrame : public QWidget
{
    Q_OBJECT

public:
    /// Owns the content. `padding` is the distance in pixels between border and content.
    GreyFrame(QWidget* content, int padding, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarnwick
