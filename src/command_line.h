// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace tarnwick {

/// Answers `--help`, `--version` and what only looks like an option of ours, on the standard output
/// or error, and returns the exit status. None if the program shall start. Qt's own options,
/// written with a single dash, are left to Qt. Needs no application object and no display.
[[nodiscard]] std::optional<int> answerCommandLine(int argc, const char* const* argv);

} // namespace tarnwick
