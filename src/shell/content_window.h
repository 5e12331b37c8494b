// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

class QWidget;

namespace tarnwick {

/// Shows a window in front and with the keyboard. It owns itself from then on and goes when it is
/// closed.
void showWindow(std::unique_ptr<QWidget> window, const QString& title);

/// The same for a widget that is no window by itself, in a window with the widget's size limits.
void showInWindow(std::unique_ptr<QWidget> content, const QString& title);

} // namespace tarnwick
