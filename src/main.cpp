// SPDX-License-Identifier: MIT
#include "command_line.h"
#include "model/background_queue.h"
#include "model/bundle_info.h"
#include "model/command_runner.h"
#include "model/diagnostics.h"
#include "model/preferences_file.h"
#include "model/preferences_store.h"
#include "platform/application_instance.h"
#include "platform/platform.h"
#include "platform/terminal_launcher.h"
#include "platform/termination.h"
#include "platform/tray_host.h"
#include "shell/app_delegate.h"
#include "shell/menu/status_menu_accessible.h"
#include "translations.h"

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
    installTranslations();
    const QString identifier = QStringLiteral("org.tarnwick.Tarnwick");
    QApplication::setDesktopFileName(identifier);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/org.tarnwick.Tarnwick.svg")));
    // The program lives in the status bar: closing a window is never the end of it.
    QApplication::setQuitOnLastWindowClosed(false);

    const auto instance = applicationInstance(identifier);
    if (!instance->becomeOnlyCopy()) {
        std::fputs("Tarnwick is already running\n", stderr);
        return EXIT_SUCCESS;
    }
    if (!instance->isReachable())
        writeDiagnosticLine(QStringLiteral("No session bus found; doing without."));

    Platform platform = systemPlatform();
    const BundleInfo bundle(platform.bundleInfo);

    installMenuAccessibility();

    PreferencesStore store = platform.userDefaults
                                 ? PreferencesStore(std::move(platform.userDefaults))
                                 : PreferencesStore(PreferencesFile::defaultPath());
    CommandRunner runner({.open = platform.openProgram});
    BackgroundQueue queue;
    const Termination termination([&runner, &store] {
        runner.endGit();
        store.synchronize();
    });

    AppDelegate delegate(platform, bundle, store, {runner, queue, *platform.terminal, store});
    QObject::connect(instance.get(), &ApplicationInstance::activated, &delegate,
                     &AppDelegate::activate);
    QObject::connect(instance.get(), &ApplicationInstance::actionRequested, &delegate,
                     &AppDelegate::performAction);
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
