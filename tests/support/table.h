// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

namespace tarnwick::test {

using namespace tarnwick; // for tests, which use this namespace

/// Declares the columns of a _data function. What it returns adds a row: a name, then the values.
template <typename... Values, typename... Columns>
[[nodiscard]] auto table(Columns... columns)
{
    (QTest::addColumn<Values>(columns), ...);
    return
        [](const char* name, const Values&... values) { (QTest::newRow(name) << ... << values); };
}

} // namespace tarnwick::test
