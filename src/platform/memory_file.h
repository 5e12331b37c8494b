// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// A new empty file without a name, which is gone once its last descriptor is closed. No child
/// inherits the descriptor; -1 if there can be none.
[[nodiscard]] int openMemoryFile();

} // namespace tarnwick
