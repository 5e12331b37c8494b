// SPDX-License-Identifier: MIT
#pragma once

#include "open/detached_request.h"

namespace tarnwick {

/// Selects the file or directory in the file manager, or the nearest folder above it that still
/// exists. A file manager that cannot do that is shown the folder around it instead; what is in
/// the file is never opened.
[[nodiscard]] Failure revealInFileManager(const QByteArray& path);

} // namespace tarnwick
