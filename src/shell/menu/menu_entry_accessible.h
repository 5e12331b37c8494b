// SPDX-License-Identifier: MIT
#pragma once

class QAccessibleInterface;
class QAction;

namespace tarnwick {

/// What assistive technology sees of a plain entry or a separator of a status menu; nothing for an
/// action that is in none. QAccessible owns the result.
[[nodiscard]] QAccessibleInterface* makeMenuEntryAccessible(QAction* action);

} // namespace tarnwick
