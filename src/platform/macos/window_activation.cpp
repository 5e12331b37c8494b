// SPDX-License-Identifier: MIT
#include "platform/window_activation.h"

#include "platform/macos/workspace.h"

#include <QWidget>

namespace tarnwick {

void bringToFront(QWidget& window)
{
    // A window of a program that is not active gets no key, however far in front it is.
    workspace::activateApplication();
    window.raise();
    window.activateWindow();
}

} // namespace tarnwick
