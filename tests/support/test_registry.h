// SPDX-License-Identifier: MIT
#pragma once

#include "support/table.h"

#include <functional>
#include <memory>
#include <vector>

namespace tarnwick::test {

using TestMaker = std::function<std::unique_ptr<QObject>()>;

/// The test classes of this executable. Each is made after the application object.
inline std::vector<TestMaker>& registeredTests()
{
    static std::vector<TestMaker> makers;
    return makers;
}

inline bool registerTest(TestMaker maker)
{
    registeredTests().push_back(std::move(maker));
    return true;
}

} // namespace tarnwick::test

#define TARNWICK_TEST(TestClass)                                                                   \
    [[maybe_unused]] static const bool isRegistered##TestClass =                                   \
        tarnwick::test::registerTest([] { return std::make_unique<TestClass>(); });
