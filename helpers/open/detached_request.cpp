// SPDX-License-Identifier: MIT
#include "open/detached_request.h"

#include <QDeadlineTimer>

#include <array>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace tarnwick {

namespace {

void detach()
{
    ::setsid();
    const int devNull = ::open("/dev/null", O_RDWR);
    for (const int channel : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        ::dup2(devNull, channel);
}

/// Reads until the other end is closed or the timeout expires.
QByteArray readWithTimeout(int descriptor, std::chrono::milliseconds timeout)
{
    QByteArray text;
    std::array<char, 512> buffer{};
    const QDeadlineTimer deadline(timeout);
    pollfd readable{descriptor, POLLIN, 0};
    while (::poll(&readable, 1, static_cast<int>(deadline.remainingTime())) > 0) {
        const ssize_t count = ::read(descriptor, buffer.data(), buffer.size());
        if (count <= 0)
            break;
        text.append(buffer.data(), count);
    }
    return text;
}

} // namespace

Failure runDetached(const std::function<Failure()>& request, std::chrono::milliseconds timeout)
{
    std::array<int, 2> resultPipe{};
    if (::pipe2(resultPipe.data(), O_CLOEXEC) != 0)
        return request();
    const auto [reader, writer] = resultPipe;
    const pid_t child = ::fork();
    if (child < 0)
        return request();
    if (child == 0) {
        detach();
        const QByteArray failure = request().value_or(QByteArray());
        const bool written =
            ::write(writer, failure.constData(), static_cast<size_t>(failure.size())) >= 0;
        ::_exit(written ? 0 : 1);
    }
    ::close(writer);
    const QByteArray failure = readWithTimeout(reader, timeout);
    return failure.isEmpty() ? std::nullopt : Failure(failure);
}

} // namespace tarnwick
