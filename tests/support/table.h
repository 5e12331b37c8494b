// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTest>

namespace tarnwick::test {

// For tests, which use this namespace.
using namespace tarnwick;
using namespace Qt::StringLiterals;

/// Declares the columns of a _data function. What it returns adds a row: a name, then the values.
template <typename... Values, typename... Columns>
[[nodiscard]] auto table(Columns... columns)
{
    (QTest::addColumn<Values>(columns), ...);
    return
        [](const char* name, const Values&... values) { (QTest::newRow(name) << ... << values); };
}

} // namespace tarnwick::test
