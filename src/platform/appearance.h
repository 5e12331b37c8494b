// SPDX-License-Identifier: MIT
#pragma once

class QPalette;

namespace tarnwick {

enum class Appearance { Light, Dark };

/// Dark where the palette's text is lighter than what it stands on.
[[nodiscard]] Appearance appearanceOf(const QPalette& palette);

} // namespace tarnwick
