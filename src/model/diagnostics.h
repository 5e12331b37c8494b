// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tarnwick {

/// Writes one plain line to standard output, as UTF-8, at once. Lines from several threads do not
/// mix. There are no levels and no log file: this is all that the program says about its work.
void writeDiagnosticLine(const QString& line);

/// Ends the process as an unhandled error does, without a word. Only for the few conditions that
/// leave nothing sensible to go on with.
[[noreturn]] void stopProcess();

} // namespace tarnwick
