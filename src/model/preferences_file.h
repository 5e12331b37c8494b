// SPDX-License-Identifier: MIT
#pragma once

#include "platform/preferences_storage.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tarnwick {

/// Preferences as one JSON object in one file that only the user may read.
///
/// A file that holds no JSON object is renamed beside it, and the storage starts empty. What cannot
/// be read (another owner's file, a link to nowhere, a device, more than 16 MiB) or renamed is left
/// alone: the storage starts empty, and nothing is ever written. A diagnostic line tells about
/// either, and about a file that cannot be written.
/// Where somebody else has changed the file since, the values that have changed here go into what
/// it holds now.
class PreferencesFile : public PreferencesStorage
{
public:
    explicit PreferencesFile(QString path)
        : m_path(std::move(path))
    {}

    /// Where this user's preferences live.
    [[nodiscard]] static QString defaultPath();

    [[nodiscard]] QJsonObject load() override;
    [[nodiscard]] bool save(QJsonObject& values) override;

private:
    [[nodiscard]] std::optional<QString> merge(QJsonObject& values) const;

    const QString m_path;
    bool m_isWritable = true;
    /// What the file held when it was last read or written.
    QByteArray m_bytes;
    QJsonObject m_values;
    /// Empty after a success.
    QString m_error;
};

} // namespace tarnwick
