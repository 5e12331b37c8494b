// SPDX-License-Identifier: MIT
#include "settings/save_button.h"

namespace tarnwick {

namespace {

constexpr QSize air{24, 0};

} // namespace

SaveButton::SaveButton(QWidget* parent)
    : QPushButton(tr("Save and close settings"), parent)
{}

QSize SaveButton::sizeHint() const
{
    return QPushButton::sizeHint() + air;
}

} // namespace tarnwick
