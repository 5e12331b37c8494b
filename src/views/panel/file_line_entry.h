// SPDX-License-Identifier: MIT
#pragma once

#include "platform/appearance.h"

#include <QColor>
#include <QString>

#include <optional>

namespace tarnwick {

/// How one changed file is shown.
struct FileLineEntry
{
    QString title;
    /// Relative to the repository, without git's quoting; that of a folder keeps its "/".
    QString path;
    /// Empty for a kind of change that has none.
    QString symbol;
    std::optional<QColor> color;
};

/// Reads a line of git's short status: a code of two characters, a space, a path, which git quotes
/// where it has special characters.
[[nodiscard]] FileLineEntry fileLineEntry(const QString& quotedLine, Appearance appearance);

} // namespace tarnwick
