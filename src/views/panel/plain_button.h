// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

namespace tarnwick {

struct CButton;

/// A button that is nothing but its content: no bezel, no background, and no trace of the pointer.
/// Only the keyboard's focus shows. The second click of a double click counts as part of the first.
class PlainButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit PlainButton(const CButton& content, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarnwick
