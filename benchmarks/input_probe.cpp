// SPDX-License-Identifier: MIT
#include "input_probe.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace tarnwick::bench {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto interval = 500us;

} // namespace

InputProbe::InputProbe()
{
    if (::pipe2(m_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        std::abort();
    m_notifier.setSocket(m_pipe[0]);
    m_notifier.setEnabled(true);
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { read(); });
    m_writer = std::jthread([descriptor = m_pipe[1]](const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            const Clock::time_point now = Clock::now();
            static_cast<void>(::write(descriptor, &now, sizeof now));
            std::this_thread::sleep_for(interval);
        }
    });
}

InputProbe::~InputProbe()
{
    m_writer = {};
    for (const int descriptor : m_pipe)
        ::close(descriptor);
}

void InputProbe::read()
{
    const Clock::time_point now = Clock::now();
    Clock::time_point written;
    while (::read(m_pipe[0], &written, sizeof written) == sizeof written) {
        const std::chrono::duration<double, std::milli> wait = now - written;
        m_longestWait = std::max(m_longestWait, wait.count());
    }
}

} // namespace tarnwick::bench
