// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace tarnwick {

/// Puts a window that is shown in front of all others, those of other programs included, and gives
/// it the keyboard, as far as the desktop allows.
void bringToFront(QWidget& window);

} // namespace tarnwick
