// SPDX-License-Identifier: MIT
#include "model/diagnostics.h"

#include <QByteArray>

#include <cstdio>
#include <cstdlib>

namespace tarnwick {

void writeDiagnosticLine(const QString& line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    // One call holds the stream's lock, so the line stays whole.
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

void stopProcess()
{
    std::abort(); // std::terminate() prints a message
}

} // namespace tarnwick
