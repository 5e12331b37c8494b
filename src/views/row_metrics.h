// SPDX-License-Identifier: MIT
#pragma once

#include <QMargins>

class QFont;

/// What the rows of the menu have in common. Measures are logical pixels; those of texts count in a
/// design whose interface font has `interfaceSize`, and keep their proportion to the font in use.
namespace tarnwick::row {

inline constexpr int width = 340;
/// The same in both directions of writing: a layout does not mirror its margins.
inline constexpr QMargins insets{20, 10, 20, 10};
inline constexpr int interfaceSize = 13;

/// The interface font in the proportion that `size` has to its own.
[[nodiscard]] QFont sizedFont(const QFont& interfaceFont, int size);

/// The side of a symbol among texts, in whole pixels.
[[nodiscard]] int sizedSide(const QFont& interfaceFont, int size);

} // namespace tarnwick::row
