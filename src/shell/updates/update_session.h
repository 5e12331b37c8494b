// SPDX-License-Identifier: MIT
#pragma once

#include "shell/updates/appcast.h"
#include "shell/updates/updater.h"

#include <QNetworkAccessManager>
#include <QObject>

#include <optional>

namespace tarnwick {

/// One check for updates: reads the feed, which has to be signed as a whole, offers the newest
/// version, downloads it on request, and asks the desktop to open the verified file if it is a
/// package, or else to show it in its folder. Installs and runs nothing.
///
/// Destruction cancels whatever is in progress. Main thread.
class UpdateSession : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Checking,
        /// Final: there is nothing newer.
        UpToDate,
        /// `download()` may be called.
        Offering,
        Downloading,
        Verifying,
        /// Final: the download is at `savedPath()`.
        Saved,
        /// Final: see `error()`.
        Failed,
    };

    explicit UpdateSession(UpdateSettings settings, QObject* parent = nullptr);

    /// To be called once.
    void start();
    /// Does nothing except while offering.
    void download();

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] const QString& buildNumber() const { return m_settings.buildNumber; }
    /// The newer version that was found, even if it cannot be downloaded.
    [[nodiscard]] const std::optional<AppcastItem>& offer() const { return m_offer; }
    [[nodiscard]] qint64 receivedBytes() const { return m_receivedBytes; }
    [[nodiscard]] const QString& savedPath() const { return m_savedPath; }
    /// Whether the desktop was asked to open the file, and not just to show it.
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
    void openDownload(const QString& path);
    /// Why the item cannot be downloaded; empty if it can.
    [[nodiscard]] QString downloadObstacle(const AppcastItem& item) const;

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
