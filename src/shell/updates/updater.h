// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QUrl>

#include <functional>

namespace tarnwick {

class BundleInfo;
class CommandRunner;

struct UpdateSettings
{
    /// The URL of the appcast; empty where there is none.
    QUrl feed;
    /// Ed25519, in base64, as packaged.
    QByteArray publicKey;
    QString buildNumber;
    QString downloadFolder;
    /// Asks the file manager to show a file in its folder.
    std::function<void(const QString& path)> showInFolder;
};

/// The packaged values and the user's own download folder. Stops the process where there is no
/// build number. The runner outlives the settings.
[[nodiscard]] UpdateSettings updateSettings(const BundleInfo& info, const CommandRunner& runner);

/// Starts checks for updates, one at a time, each in a window of its own. The window outlives this
/// object if it has to; another updater may then start a second one. Nothing is checked unless
/// `checkForUpdates()` is called. Main thread.
class Updater : public QObject
{
    Q_OBJECT

public:
    explicit Updater(UpdateSettings settings);

    void start();

    /// False until it is started, where the feed has no trusted URL, and while the window of a
    /// check is open.
    [[nodiscard]] bool canCheckForUpdates() const;
    /// Does nothing while `canCheckForUpdates()` is false.
    void checkForUpdates();

Q_SIGNALS:
    void canCheckForUpdatesChanged(bool canCheckForUpdates);

private:
    void setChecking(bool isChecking);

    const UpdateSettings m_settings;
    bool m_isStarted = false;
    bool m_isChecking = false;
};

/// Owns an updater. It may be destroyed at any time: the window of a check stays until the user
/// closes it.
class StandardUpdaterController
{
public:
    explicit StandardUpdaterController(UpdateSettings settings, bool startingUpdater)
        : m_updater(std::move(settings))
    {
        if (startingUpdater)
            m_updater.start();
    }

    [[nodiscard]] Updater& updater() { return m_updater; }

private:
    Updater m_updater;
};

} // namespace tarnwick
