// SPDX-License-Identifier: MIT
#include "platform/launcher_helper.h"
#include "platform/macos/bundle_layout.h"
#include "platform/macos/core_foundation.h"
#include "platform/macos/workspace.h"

#include <QGuiApplication>
#include <QProcess>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace std::chrono_literals;

constexpr auto timeout = 60s; // start-up is slow right after login

void onKill(CFNotificationCenterRef, void*, CFNotificationName, const void*, CFDictionaryRef)
{
    QCoreApplication::quit();
}

void quitOnKillNotification(const QString& application)
{
    using namespace tarnwick;
    static constexpr char observer = 0; // identifies us, no more
    CFNotificationCenterAddObserver(CFNotificationCenterGetDistributedCenter(), &observer, onKill,
                                    cf::string(launcher::killNotification).get(),
                                    cf::string(application).get(),
                                    CFNotificationSuspensionBehaviorDeliverImmediately);
}

} // namespace

int main(int argc, char* argv[])
{
    using namespace tarnwick;

    // A program without an interface of its own is not among the running applications, and the
    // application would not know that it has somebody to tell.
    QGuiApplication launcher(argc, argv);
    const QString application = QStringLiteral(TARNWICK_IDENTIFIER);
    if (workspace::runningApplicationIdentifiers().contains(application))
        return EXIT_SUCCESS;

    quitOnKillNotification(application);
    const QStringList arguments =
        bundleLayout::startArguments(QCoreApplication::applicationDirPath());
    if (QProcess::execute(QStringLiteral("/usr/bin/open"), arguments) != 0)
        return EXIT_FAILURE; // it has said why
    QTimer::singleShot(timeout, [] {
        std::fputs("TarnwickLauncher: Tarnwick did not come up\n", stderr);
        QCoreApplication::exit(EXIT_FAILURE);
    });
    return QGuiApplication::exec();
}
