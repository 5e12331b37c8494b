// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tarnwick {

/// The bytes of a file, or in words why there are none.
struct FileContent
{
    std::optional<QByteArray> bytes;
    QString error = {};
};

/// Reads a whole file that may come from anybody. Nothing but a regular file, or a link to one, is
/// opened: a pipe would block, a device may never end. A file of more than `maxBytes` is an error.
/// Any thread.
[[nodiscard]] FileContent readRegularFile(const QString& path, qint64 maxBytes);

} // namespace tarnwick
