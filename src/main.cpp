// SPDX-License-Identifier: MIT
#include "command_line.h"
#include "model/background_queue.h"
#include "model/bundle_info.h"
#include "model/command_runner.h"
#include "model/preferences_file.h"
#include "model/preferences_store.h"
#include "platform/application_instance.h"
#include "platform/platform.h"
#include "platform/terminal_launcher.h"
#include "platform/tray_host.h"
#include "shell/app_delegate.h"
#include "shell/menu/status_menu_accessible.h"

#include <QApplication>
#include <QIcon>

#include <csignal>
#include <cstdio>
#include <cstdlib>

int main(int argc, char* argv[])
{
    using namespace tarnwick;

    // Output may be piped to a program that ends. QProcess gives children the default back.
    std::signal(SIGPIPE, SIG_IGN);

    if (const auto status = answerCommandLine(argc, argv))
        return *status;

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tarnwick"));
    QApplication::setDesktopFileName(QStringLiteral("org.tarnwick.Tarnwick"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/org.tarnwick.Tarnwick.svg")));
    // The program lives in the status bar: closing a window is never the end of it.
    QApplication::setQuitOnLastWindowClosed(false);

    Platform platform = systemPlatform();
    const BundleInfo bundle(platform.bundleInfo);
    if (!becomeRunningApplication(bundle.text(QStringLiteral("CFBundleIdentifier")))) {
        std::fputs("Tarnwick is already running\n", stderr);
        return EXIT_SUCCESS;
    }

    installMenuAccessibility();

    PreferencesStore store = platform.userDefaults
                                 ? PreferencesStore(std::move(platform.userDefaults))
                                 : PreferencesStore(PreferencesFile::defaultPath());
    CommandRunner runner({.open = platform.openProgram});
    BackgroundQueue queue;

    AppDelegate delegate(platform, bundle, store, {runner, queue, *platform.terminal, store});
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
