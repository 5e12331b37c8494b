// SPDX-License-Identifier: MIT
#include "platform/changed_values.h"

namespace tarnwick {

QJsonObject changedValues(const QJsonObject& before, const QJsonObject& after)
{
    QJsonObject changed;
    for (auto value = after.begin(); value != after.end(); ++value) {
        if (before.value(value.key()) != value.value())
            changed.insert(value.key(), value.value());
    }
    return changed;
}

} // namespace tarnwick
