// SPDX-License-Identifier: MIT
#pragma once

#include <QProcessEnvironment>

namespace tarnwick {

/// The environment for a program that we start: our own, less the activation token that a panel or
/// a launcher has handed over for a window of ours.
[[nodiscard]] QProcessEnvironment programEnvironment();

} // namespace tarnwick
