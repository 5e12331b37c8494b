// SPDX-License-Identifier: MIT
#include "platform/window_activation.h"

#include <QWidget>

namespace tarnwick {

void bringToFront(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}

} // namespace tarnwick
