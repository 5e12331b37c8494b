// SPDX-License-Identifier: MIT
#pragma once

#include "platform/program_environment.h"

namespace tarnwick {

/// The environment in which git runs for us: `inherited`, less what would point git at another
/// repository than the one named by "-C", and with its output in the words and the form that our
/// parsing reads, and without any way to ask the user something. The user's git configuration stays
/// in force, except for colour, "status.aheadBehind" and prompts.
[[nodiscard]] Environment gitEnvironment(Environment inherited);

} // namespace tarnwick
