// SPDX-License-Identifier: MIT
#include "settings/save_button.h"

#include <QApplication>

namespace tarnwick {

namespace {

constexpr int horizontalPadding = 12;

} // namespace

SaveButton::SaveButton(QWidget* parent)
    : QPushButton(tr("Save and close settings"), parent)
{}

QSize SaveButton::sizeHint() const
{
    return QPushButton::sizeHint() + QSize(2 * horizontalPadding, 0);
}

void closeKeyWindow()
{
    if (QWidget* const window = QApplication::activeWindow())
        window->close();
}

} // namespace tarnwick
