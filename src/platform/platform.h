// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>

#include <memory>

namespace tarnwick {

class ActiveWindow;
class ApplicationFolder;
class LoginServices;
class PreferencesStorage;
class TerminalLauncher;
class TrayHost;

/// The desktop that the program runs on: one implementation for each thing in which desktops
/// differ. Made once by `main` after the application object, and handed down.
struct Platform
{
    Platform();
    Platform(Platform&&) noexcept;
    ~Platform();

    std::unique_ptr<TrayHost> trayHost;
    std::unique_ptr<ActiveWindow> activeWindow;
    /// Keeps the palette with the desktop's; nothing to call. Null where Qt does that itself.
    std::unique_ptr<QObject> paletteFollower;
    std::unique_ptr<TerminalLauncher> terminal;
    std::unique_ptr<ApplicationFolder> systemApplications;
    std::unique_ptr<ApplicationFolder> userApplications;
    std::unique_ptr<LoginServices> loginServices;
    /// The system's own preferences service; null where it has none.
    std::unique_ptr<PreferencesStorage> userDefaults;
    /// Absolute path of the program that opens a directory in an application, or shows a file in
    /// the file manager.
    QString openProgram;
    /// What the packaging says about the program; empty where it says nothing that can be read.
    QJsonObject bundleInfo;
};

/// What this build's system offers.
[[nodiscard]] Platform systemPlatform();

} // namespace tarnwick
