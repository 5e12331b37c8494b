// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Whether a popup can hold the pointer and the keyboard of the desktop while it is open. A Wayland
/// compositor grants that only in answer to input that the program got, which a click on the
/// panel's item is not; with Qt's X11 platform it grants it over X11 windows alone. A popup is of
/// no use there, a window that closes when it loses the keyboard is.
[[nodiscard]] bool popupsHoldInput();

/// Whether a window that is no popup can be put beside the status item, too.
[[nodiscard]] bool windowsCanBePlaced();

/// Whether a popup that opens now would get them: another program can hold them, as panels do for
/// as long as they show a menu. True where `popupsHoldInput()` is not. Waits for the display
/// server.
[[nodiscard]] bool inputIsFree();

} // namespace tarnwick
