// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

class QWidget;

namespace tarnwick {

/// Shows the content as a window of its own, in front and with the keyboard. The window owns itself
/// from then on and goes when it is closed.
void showInWindow(std::unique_ptr<QWidget> content, const QString& title);

} // namespace tarnwick
