// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

namespace tarnwick {

/// One version that a feed announces. Everything is as it stands there, only that endless versions
/// are cut off, and may be missing.
struct AppcastItem
{
    /// The build number, which tells what is newer; never empty.
    QString version;
    /// What people call the version.
    QString shortVersion;
    QString notes;
    bool notesArePlainText = false;
    QUrl notesLink;

    QUrl url;
    /// In bytes; 0 where it is missing or no number.
    qint64 length = 0;
    /// Base64.
    QByteArray signature;

    [[nodiscard]] const QString& name() const
    {
        return shortVersion.isEmpty() ? version : shortVersion;
    }
};

/// The name by which feeds call the system that this program runs on.
[[nodiscard]] QString appcastSystem();

/// The items of a feed (RSS 2.0 with Sparkle's elements) that are for everybody on that system:
/// those of a channel and those of other systems are left out. Nothing where the bytes are no feed,
/// end early, declare entities, go on for too long without a tag, or hold no item at all.
[[nodiscard]] std::optional<QList<AppcastItem>> parseAppcast(const QByteArray& xml,
                                                             const QString& system);

/// The item with the highest version, if that is higher than the given one.
[[nodiscard]] std::optional<AppcastItem> newestItem(const QList<AppcastItem>& items,
                                                    const QString& buildNumber);

} // namespace tarnwick
