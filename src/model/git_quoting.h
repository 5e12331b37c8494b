// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tarnwick {

/// The path that git means by `path`, a field of its output. Git puts a path with special
/// characters into double quotes and escapes it as C does, with octal escapes for bytes
/// ("core.quotePath" in git-config(1)). Whatever is not one complete quoted path is returned as it
/// is; bytes that are not UTF-8 become replacement characters.
[[nodiscard]] QString unquotedGitPath(const QString& path);

} // namespace tarnwick
