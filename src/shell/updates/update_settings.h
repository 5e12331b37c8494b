// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace tarnwick {

class BundleInfo;

struct UpdateSettings
{
    /// The appcast; empty where there is none.
    QUrl feed;
    /// Ed25519, in base64, as packaged.
    QByteArray publicKey;
    QString buildNumber;
    QString downloadFolder;
};

/// What the program was packaged with, and the user's own download folder. Stops the process where
/// there is no build number.
[[nodiscard]] UpdateSettings updateSettings(const BundleInfo& info);

} // namespace tarnwick
