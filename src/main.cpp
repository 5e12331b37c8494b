// SPDX-License-Identifier: MIT
#include "model/background_queue.h"
#include "model/command_runner.h"
#include "model/preferences_store.h"
#include "platform/platform.h"
#include "platform/terminal_launcher.h"
#include "platform/tray_host.h"
#include "shell/app_delegate.h"
#include "shell/menu/status_menu_accessible.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    using namespace tarnwick;

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarnwick"));
    QApplication::setDesktopFileName(QStringLiteral("org.tarnwick.Tarnwick"));
    // The program lives in the status bar: closing a window is never the end of it.
    QApplication::setQuitOnLastWindowClosed(false);

    installMenuAccessibility();

    Platform platform = systemPlatform();
    PreferencesStore store(PreferencesStore::defaultFilePath());
    CommandRunner runner({.open = platform.openProgram});
    BackgroundQueue queue;

    AppDelegate delegate(platform, store, {runner, queue, *platform.terminal, store});
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
