// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace tarnwick {

class TrayHost;

/// The desktop that the program runs on: one implementation for each thing in which desktops
/// differ. Made once by `main` after the application object, and handed down.
struct Platform
{
    Platform();
    Platform(Platform&&) noexcept;
    ~Platform();

    std::unique_ptr<TrayHost> trayHost;
    /// Keeps the palette with the desktop's; nothing to call.
    std::unique_ptr<QObject> paletteFollower;
    /// Absolute path of the program that opens a directory in an application.
    QString openProgram;
};

/// What this build's system offers.
[[nodiscard]] Platform systemPlatform();

} // namespace tarnwick
