// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace tarnwick {

/// The button "Save and close settings" of the settings and the link windows.
class SaveButton : public QPushButton
{
    Q_OBJECT

public:
    explicit SaveButton(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
};

/// Closes this program's active window; does nothing if none of them is active.
void closeKeyWindow();

} // namespace tarnwick
