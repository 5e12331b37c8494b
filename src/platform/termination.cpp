// SPDX-License-Identifier: MIT
#include "platform/termination.h"

#include <QCoreApplication>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <mutex>
#include <thread>
#include <unistd.h>

namespace tarnwick {

namespace {

constexpr unsigned int timeoutSeconds = 10;
constexpr std::array signals{SIGTERM, SIGINT, SIGHUP};

std::array<int, 2> channel{-1, -1};
std::mutex actionMutex;

/// Is not destroyed: the thread may still call it while the process exits.
std::function<void()>& actionAtEnd()
{
    static auto& action = *new std::function<void()>;
    return action;
}

void callAction()
{
    const std::scoped_lock lock(actionMutex);
    if (actionAtEnd())
        actionAtEnd()();
}

/// Runs in a signal handler.
void notify(int signal)
{
    const int savedError = errno;
    const char byte = static_cast<char>(signal);
    static_cast<void>(::write(channel[1], &byte, 1));
    errno = savedError;
}

/// The main thread may be waiting for a git that hangs: it cannot take the signals itself.
void waitForSignals()
{
    char byte = 0;
    for (;;) {
        const auto count = ::read(channel[0], &byte, 1);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return;
        std::signal(SIGALRM, SIG_DFL);
        ::alarm(timeoutSeconds);
        callAction();
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
    }
}

QtMessageHandler messageHandler = nullptr;

/// On Wayland, Qt ends the process without `exit()` when the display goes, right after it has said
/// so; on any thread.
void heedEndOfWayland(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtWarningMsg && message.startsWith(QLatin1String("The Wayland connection ")))
        callAction();
    messageHandler(type, context, message);
}

void handle(int signal)
{
    struct sigaction action = {};
    if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
        return;
    action.sa_handler = notify; // children get the default back
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

} // namespace

Termination::Termination(std::function<void()> action)
{
    actionAtEnd() = std::move(action);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, callAction);
    std::atexit(callAction);
    messageHandler = qInstallMessageHandler(nullptr); // other threads may need it at once
    qInstallMessageHandler(heedEndOfWayland);
    if (::pipe(channel.data()) != 0)
        return;
    for (const int end : channel)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    ::fcntl(channel[1], F_SETFL, O_NONBLOCK); // a signal handler must not block
    std::thread(waitForSignals).detach();
    for (const int signal : signals)
        handle(signal);
}

Termination::~Termination()
{
    qInstallMessageHandler(messageHandler);
    callAction();
    const std::scoped_lock lock(actionMutex);
    actionAtEnd() = nullptr;
}

} // namespace tarnwick
