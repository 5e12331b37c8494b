// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Tells assistive technology that rows that can be reordered are the items of a list. By itself Qt
/// takes them for parts of the window. To be called once, before the event loop runs.
void installListAccessibility();

} // namespace tarnwick
