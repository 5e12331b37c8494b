// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>

namespace tarnwick {

/// The values of `after` that `before` lacks or has otherwise. Only these are written, so that what
/// another program has changed meanwhile stays.
[[nodiscard]] QJsonObject changedValues(const QJsonObject& before, const QJsonObject& after);

} // namespace tarnwick
