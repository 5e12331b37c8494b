// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Tells assistive technology what status menus hold. By itself Qt reports only the texts of a
/// menu's actions, nothing inside hosted views, and leaves open popups out of the application's
/// children. To be called once, before the event loop runs.
void installMenuAccessibility();

} // namespace tarnwick
