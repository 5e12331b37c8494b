// SPDX-License-Identifier: MIT
#pragma once

#include "open/detached_request.h"

namespace tarnwick {

/// Opens the directory in the application of that name, with or without ".app"; one of the user's
/// own comes first.
[[nodiscard]] Failure openInApplication(const QByteArray& name, const QByteArray& directory);

} // namespace tarnwick
