// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;

namespace tarnwick {

class StatusMenu;

/// What a key does in the innermost open menu. The arrows, Home, End, PageUp and PageDown go
/// through the rows that have a submenu and the controls of those that have none, Tab through all
/// controls; Return and Space press a control or open a submenu, Escape and the arrow back close
/// one. All other keys do nothing.
void pressKey(StatusMenu& menu, const QKeyEvent& key);

} // namespace tarnwick
