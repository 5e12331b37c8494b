// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace tarnwick {

/// The button at the end of every window of settings.
class SaveButton : public QPushButton
{
    Q_OBJECT

public:
    explicit SaveButton(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
};

} // namespace tarnwick
