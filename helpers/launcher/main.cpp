// SPDX-License-Identifier: MIT
#include "launcher.h"
#include "platform/launcher_helper.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

#include <cstdio>

namespace {

bool startApplication()
{
    const QString program = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                            QStringLiteral("/" TARNWICK_PROGRAMS "/tarnwick"));
    if (QProcess::startDetached(program, {}))
        return true;
    std::fprintf(stderr, "tarnwick-launcher: %s cannot be started\n", qUtf8Printable(program));
    return false;
}

} // namespace

int main(int argc, char* argv[])
{
    using namespace tarnwick;

    QCoreApplication application(argc, argv);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) // then no notification can arrive
        return startApplication() ? EXIT_SUCCESS : EXIT_FAILURE;
    if (!bus.registerService(launcher::identifier))
        return EXIT_SUCCESS; // another instance is waiting already

    const Launcher launcher(bus, QStringLiteral(TARNWICK_IDENTIFIER));
    if (launcher.isApplicationRunning())
        return EXIT_SUCCESS;
    return startApplication() ? QCoreApplication::exec() : EXIT_FAILURE;
}
