// SPDX-License-Identifier: MIT
#include "model/bundle_info.h"

#include "model/diagnostics.h"

namespace tarnwick {

QString BundleInfo::requiredText(const QString& key) const
{
    const QJsonValue value = m_values.value(key);
    if (!value.isString())
        stopProcess();
    return value.toString();
}

} // namespace tarnwick
