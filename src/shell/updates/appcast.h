// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringView>
#include <QUrl>

#include <compare>
#include <optional>

namespace tarnwick {

/// One version of a feed. Every field but `version` may be missing. Versions consist of
/// printable characters and are cut off if they are long.
struct AppcastItem
{
    /// The build number, by which versions are compared; never empty.
    QString version;
    /// The version for the user, such as "1.3".
    QString shortVersion;
    QString notes;
    bool notesArePlainText = false;
    QUrl notesLink;

    QUrl url;
    /// In bytes; 0 if missing or invalid.
    qint64 length = 0;
    /// Base64.
    QByteArray signature;

    [[nodiscard]] const QString& name() const
    {
        return shortVersion.isEmpty() ? version : shortVersion;
    }
};

/// Compares versions part by part: a part is a run of digits or of letters, anything else
/// separates. Numbers of any length compare by value, letters case-insensitively, and letters are
/// before numbers. A missing part is 0, so "1" equals "1.0", and "1.0b2" is before "1.0".
[[nodiscard]] std::weak_ordering compareVersions(QStringView left, QStringView right);

/// The name of this operating system in feeds.
[[nodiscard]] QString appcastSystem();

/// The items of a feed (RSS 2.0 with Sparkle's elements) for that system, without those of a
/// channel. Nothing if the bytes are no complete feed, declare entities, contain a very long tag,
/// or no item at all.
[[nodiscard]] std::optional<QList<AppcastItem>> parseAppcast(const QByteArray& xml,
                                                             const QString& system);

/// The item with the highest version, if that is higher than `buildNumber`.
[[nodiscard]] std::optional<AppcastItem> newestItem(const QList<AppcastItem>& items,
                                                    const QString& buildNumber);

} // namespace tarnwick
