// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace tarnwick {

/// For each directory, in order, where it lies, as far as that tells it from those that have the
/// same last component: "work" for "/src/work/app" beside "/src/mine/app", "a/lib" for "/a/lib/app"
/// beside "/b/lib/app". Empty for a directory whose last component no other has.
[[nodiscard]] QStringList distinguishingFolders(const QStringList& dirs);

} // namespace tarnwick
