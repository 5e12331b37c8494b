// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace tarnwick {

/// Replaces the file at `path` by `bytes`, all or nothing, readable by its owner only (0600).
///
/// Missing folders above it are made (0700). Where `path` is a symbolic link, the file it leads to
/// is replaced and the link stays; what is no file, a device for example, is left alone. True means
/// that content and name have reached the disk. False means that they may not have; the file then
/// holds the old content or the new, never a mixture. Blocks on the disk; any thread.
[[nodiscard]] bool replaceFileDurably(const QString& path, const QByteArray& bytes);

} // namespace tarnwick
