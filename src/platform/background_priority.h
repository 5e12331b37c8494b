// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Lowers the priority of the calling thread, and of the programs it starts from then on, so that
/// refreshing never slows the user's own work down noticeably. It cannot be taken back.
/// A thread that already runs lower stays where it is; calling again costs nothing.
void enterBackgroundPriority();

} // namespace tarnwick
