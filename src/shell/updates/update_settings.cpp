// SPDX-License-Identifier: MIT
#include "shell/updates/update_settings.h"

#include "model/bundle_info.h"

#include <QStandardPaths>

namespace tarnwick {

UpdateSettings updateSettings(const BundleInfo& info)
{
    return {
        .feed = QUrl(info.text(QStringLiteral("SUFeedURL"))),
        .publicKey = info.text(QStringLiteral("SUPublicEDKey")).toLatin1(),
        .buildNumber = info.requiredText(QStringLiteral("CFBundleVersion")),
        .downloadFolder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation),
    };
}

} // namespace tarnwick
