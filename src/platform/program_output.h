// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <optional>

namespace tarnwick {

class CStrings;

struct ProgramOutput
{
    QByteArray standardOutput;
    QByteArray standardError;
};

/// Runs a program with this environment and our standard input until it has exited, and returns
/// what it has printed; null if it cannot be started. Programs that it leaves behind are not waited
/// for. `started` is called with the process number as soon as there
/// is one.
///
/// Blocks without a timeout; any thread. What `QProcess` does for programs that are talked to makes
/// each of the hundreds of short queries a tenth dearer.
[[nodiscard]] std::optional<ProgramOutput> runProgram(const QString& path,
                                                      const QStringList& arguments,
                                                      const CStrings& environment,
                                                      const std::function<void(qint64)>& started);

} // namespace tarnwick
