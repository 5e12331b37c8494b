// SPDX-License-Identifier: MIT
#pragma once

#include "support/table.h"

#include <functional>
#include <memory>

namespace tarnwick::test {

using TestMaker = std::function<std::unique_ptr<QObject>()>;

/// The test classes of this executable by their names. Each is made after the application object.
inline QMap<QString, TestMaker>& registeredTests()
{
    static QMap<QString, TestMaker> makers;
    return makers;
}

inline bool registerTest(const QString& name, TestMaker maker)
{
    registeredTests().insert(name, std::move(maker));
    return true;
}

} // namespace tarnwick::test

#define TARNWICK_TEST(TestClass)                                                                   \
    [[maybe_unused]] static const bool isRegistered##TestClass = tarnwick::test::registerTest(     \
        QStringLiteral(#TestClass), [] { return std::make_unique<TestClass>(); });
