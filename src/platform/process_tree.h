// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

namespace tarnwick {

/// Ends these children of this process and everything that they have started. They are asked to
/// end, and are killed half a second later. Process numbers that are no children of this process
/// (any more) are passed over. Blocks until all have ended, for up to a second; any thread.
void endChildren(const QList<qint64>& children);

} // namespace tarnwick
