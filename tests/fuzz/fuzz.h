// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <cstdlib>

/// Of each target: reads the input as one kind of foreign text, and requires what must hold.
void fuzz(const QByteArray& input);

/// Aborts unless the condition holds.
inline void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// What stopProcess() throws here, so that a stop is an outcome.
struct Stop
{};
