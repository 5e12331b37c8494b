// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QUrl;

namespace tarnwick {

/// A name for what an address leads to: its last path component without separators, control
/// characters and leading dots, short enough for every file system. Never empty.
[[nodiscard]] QString safeFileName(const QUrl& url);

/// The path of that name in the folder or, while something is in the way, of "name (2).ext",
/// "name (3).ext" and so on.
[[nodiscard]] QString unusedPath(const QString& folder, const QString& fileName);

} // namespace tarnwick
