// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Closes the window of this program that has the keyboard; does nothing if none has it.
void closeKeyWindow();

} // namespace tarnwick
