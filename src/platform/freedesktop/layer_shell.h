// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Whether the program runs on a Wayland compositor that takes layer surfaces.
[[nodiscard]] bool hasLayerShell();

} // namespace tarnwick
