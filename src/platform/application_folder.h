// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>

#include <optional>

namespace tarnwick {

/// One of the two places that hold installed applications: the system's, or the user's own. An
/// application goes by its file name in that place, which ends in ".app" ("Text Editor.app").
/// Answers may date from any earlier call in the same turn of the event loop, so that a caller can
/// ask for many names. Main thread only.
class ApplicationFolder
{
public:
    virtual ~ApplicationFolder() = default;

    /// The folder as a person is told about it; ends in "/".
    [[nodiscard]] virtual QString path() const = 0;
    /// The names of everything in it, in no particular order, other files included; nothing if it
    /// cannot be read.
    [[nodiscard]] virtual std::optional<QStringList> entries() const = 0;
    [[nodiscard]] virtual bool contains(const QString& name) const = 0;
    /// Null where there is none.
    [[nodiscard]] virtual QIcon icon(const QString& name) const = 0;
};

} // namespace tarnwick
