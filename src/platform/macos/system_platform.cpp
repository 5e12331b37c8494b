// SPDX-License-Identifier: MIT
#include "platform/macos/active_window.h"
#include "platform/macos/bundle_layout.h"
#include "platform/macos/core_foundation.h"
#include "platform/macos/login_services.h"
#include "platform/macos/terminal_launcher.h"
#include "platform/macos/tray_host.h"
#include "platform/macos/user_defaults.h"
#include "platform/plain_application_folder.h"
#include "platform/platform.h"

#include <QCoreApplication>
#include <QDir>

namespace tarnwick {

namespace {

QJsonObject readBundleInfo()
{
    const CFDictionaryRef info = CFBundleGetInfoDictionary(CFBundleGetMainBundle());
    return info ? cf::jsonObject(info) : QJsonObject();
}

} // namespace

Platform systemPlatform()
{
    Platform platform;
    platform.bundleInfo = readBundleInfo();
    platform.trayHost = std::make_unique<MacTrayHost>();
    platform.activeWindow = std::make_unique<MacActiveWindow>();
    platform.terminal = std::make_unique<MacTerminalLauncher>(QStringLiteral("/usr/bin/osascript"));
    platform.systemApplications =
        std::make_unique<PlainApplicationFolder>(QStringLiteral("/Applications/"));
    platform.userApplications = std::make_unique<PlainApplicationFolder>(
        QDir::homePath() + QStringLiteral("/Applications/"));
    platform.loginServices = std::make_unique<MacLoginServices>(
        bundleLayout::launcherProgram(QCoreApplication::applicationDirPath()),
        platform.bundleInfo.value(QStringLiteral("CFBundleIdentifier")).toString());
    platform.userDefaults = std::make_unique<UserDefaults>();
    platform.openProgram = QStringLiteral("/usr/bin/open");
    return platform;
}

} // namespace tarnwick
