// SPDX-License-Identifier: MIT
#include "open/hand_over.h"

#include <QDeadlineTimer>

#include <array>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace tarnwick {

namespace {

void leaveCaller()
{
    ::setsid();
    const int nothing = ::open("/dev/null", O_RDWR);
    for (const int channel : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        ::dup2(nothing, channel);
}

/// What arrives before the other end is closed or the time is over.
QByteArray readWithin(int descriptor, std::chrono::milliseconds patience)
{
    QByteArray text;
    std::array<char, 512> piece{};
    const QDeadlineTimer deadline(patience);
    pollfd readable{descriptor, POLLIN, 0};
    while (::poll(&readable, 1, static_cast<int>(deadline.remainingTime())) > 0) {
        const ssize_t count = ::read(descriptor, piece.data(), piece.size());
        if (count <= 0)
            break;
        text.append(piece.data(), count);
    }
    return text;
}

} // namespace

Failure handOver(const std::function<Failure()>& request, std::chrono::milliseconds patience)
{
    std::array<int, 2> outcome{};
    if (::pipe2(outcome.data(), O_CLOEXEC) != 0)
        return request();
    const auto [reader, writer] = outcome;
    const pid_t child = ::fork();
    if (child < 0)
        return request();
    if (child == 0) {
        leaveCaller();
        const QByteArray failure = request().value_or(QByteArray());
        const bool told =
            ::write(writer, failure.constData(), static_cast<size_t>(failure.size())) >= 0;
        ::_exit(told ? 0 : 1);
    }
    ::close(writer);
    const QByteArray failure = readWithin(reader, patience);
    return failure.isEmpty() ? std::nullopt : Failure(failure);
}

} // namespace tarnwick
