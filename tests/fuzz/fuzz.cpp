// SPDX-License-Identifier: MIT
#include "fuzz.h"

#include "model/diagnostics.h"

// These two stand in for the model's, which are left out of the program then.
void tarnwick::writeDiagnosticLine(const QString& /*line*/) {}
void tarnwick::stopProcess()
{
    throw Stop();
}

extern "C" int LLVMFuzzerTestOneInput(const uchar* data, std::size_t size)
{
    fuzz({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)});
    return 0;
}
