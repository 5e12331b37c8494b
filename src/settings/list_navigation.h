// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace tarnwick {

/// The row that a key moves to in a list of `count` rows: Up, Down, Home, End, PageUp or PageDown.
/// Nothing for any other key. `pageSize` is the number of rows in a page.
[[nodiscard]] std::optional<int> rowAfterKey(int key, int row, int count, int pageSize);

} // namespace tarnwick
