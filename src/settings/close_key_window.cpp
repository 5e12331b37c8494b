// SPDX-License-Identifier: MIT
#include "settings/close_key_window.h"

#include <QApplication>
#include <QWidget>

namespace tarnwick {

void closeKeyWindow()
{
    if (QWidget* const window = QApplication::activeWindow())
        window->close();
}

} // namespace tarnwick
