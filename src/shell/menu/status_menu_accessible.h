// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Tells assistive technology that status menus are menus and their rows menu items. By itself Qt
/// leaves open popups out of the application's children. To be called once, before the event loop
/// runs.
void installMenuAccessibility();

} // namespace tarnwick
