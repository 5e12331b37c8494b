// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QProcessEnvironment>

namespace tarnwick {

/// Names and values in the bytes of the system.
using Environment = QMap<QByteArray, QByteArray>;

/// The environment for a program that we start: our own, less the activation token that a panel or
/// a launcher has handed over for a window of ours.
[[nodiscard]] Environment inheritedEnvironment();
/// The same for a `QProcess`.
[[nodiscard]] QProcessEnvironment programEnvironment();

/// As "NAME=value" each.
[[nodiscard]] QList<QByteArray> entriesOf(const Environment& environment);

} // namespace tarnwick
