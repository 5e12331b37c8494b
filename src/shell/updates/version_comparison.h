// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <compare>

namespace tarnwick {

/// Compares versions part by part, where a part is a run of digits or a run of letters and all else
/// separates. Numbers of any length compare by value, letters without regard to case, and letters
/// stand before numbers. A missing part is 0, so "1" equals "1.0", and "1.0b2" is before "1.0".
[[nodiscard]] std::weak_ordering compareVersions(QStringView left, QStringView right);

} // namespace tarnwick
