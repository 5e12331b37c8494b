// SPDX-License-Identifier: MIT
#pragma once

#include "shell/updates/appcast.h"
#include "shell/updates/update_settings.h"

#include <QNetworkAccessManager>
#include <QObject>

#include <optional>

namespace tarnwick {

class Transfer;

/// One check for updates: reads the feed, offers the newest version, downloads it when asked to and
/// hands the proven file to the desktop's opener. Installs and runs nothing.
///
/// Destruction breaks off whatever is going on. Main thread.
class UpdateSession : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Checking,
        /// The end: there is nothing newer.
        UpToDate,
        /// There is an offer to `download()`.
        Offering,
        Downloading,
        Verifying,
        /// The end: the download is at `savedPath()`.
        Saved,
        /// The end, with an `error()`.
        Failed,
    };

    explicit UpdateSession(UpdateSettings settings, QObject* parent = nullptr);

    /// Once.
    void start();
    /// While offering.
    void download();

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] const QString& buildNumber() const { return m_settings.buildNumber; }
    /// The newer version, if one has been found, even if it cannot be downloaded.
    [[nodiscard]] const std::optional<AppcastItem>& offer() const { return m_offer; }
    [[nodiscard]] qint64 receivedBytes() const { return m_receivedBytes; }
    [[nodiscard]] const QString& savedPath() const { return m_savedPath; }
    /// Whether the desktop took the file.
    [[nodiscard]] bool isOpened() const { return m_isOpened; }
    /// Sentences for the user.
    [[nodiscard]] const QString& error() const { return m_error; }

Q_SIGNALS:
    void stateChanged();
    void progressed();

private:
    void setState(State state);
    void fail(const QString& reason);
    void readFeed();
    void handOver(const QString& path);
    /// Empty where nothing is against the download.
    [[nodiscard]] QString objectionTo(const AppcastItem& item) const;

    const UpdateSettings m_settings;
    QNetworkAccessManager m_network;
    State m_state = State::Checking;
    QByteArray m_feed;
    std::optional<AppcastItem> m_offer;
    qint64 m_receivedBytes = 0;
    QString m_savedPath;
    bool m_isOpened = false;
    QString m_error;
};

} // namespace tarnwick
