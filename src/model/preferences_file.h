// SPDX-License-Identifier: MIT
#pragma once

#include "platform/preferences_storage.h"

#include <QString>

namespace tarnwick {

/// Preferences as one JSON object in one file that only the user may read.
///
/// A file that holds no JSON object is renamed beside it, and the storage starts empty. What cannot
/// be read (another owner's file, a link to nowhere, a device, more than 16 MiB) or renamed is left
/// alone: the storage starts empty, and nothing is ever written. A diagnostic line tells about
/// either, and about a file that cannot be written.
class PreferencesFile : public PreferencesStorage
{
public:
    explicit PreferencesFile(QString path)
        : m_path(std::move(path))
    {}

    /// Where this user's preferences live.
    [[nodiscard]] static QString defaultPath();

    [[nodiscard]] QJsonObject load() override;
    [[nodiscard]] bool save(const QJsonObject& values) override;

private:
    const QString m_path;
    bool m_isWritable = true;
};

} // namespace tarnwick
