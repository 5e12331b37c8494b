// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QKeyEvent;
class QString;

namespace tarnwick {

class StatusMenu;

/// What a key does in the innermost open menu. The arrows, Home, End, PageUp and PageDown go
/// through the rows that have a submenu and the controls of those that have none, Tab through all
/// controls; Return and Space press a control or open a submenu, Escape and the arrow back close
/// one. All other keys do nothing.
void pressKey(StatusMenu& menu, const QKeyEvent& key);

enum class SearchFrom { Current, Next };

/// Moves to the first row of a menu that has a wanted name, or entry of a panel; the search begins
/// where the keyboard is or behind that, and goes on from the top. Returns whether there is one.
bool moveToName(StatusMenu& menu, const std::function<bool(const QString&)>& isWanted,
                SearchFrom from);

} // namespace tarnwick
