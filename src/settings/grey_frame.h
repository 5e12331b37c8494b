// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tarnwick {

/// A grey border of one pixel around its content, which keeps the given distance from it.
class GreyFrame : public QWidget
{
    Q_OBJECT

public:
    /// Owns the content.
    GreyFrame(QWidget* content, int inset, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarnwick
