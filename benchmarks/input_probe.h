// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <array>
#include <thread>

namespace tarnwick::bench {

/// Measures for how long input has to wait for the event loop of the thread that makes the probe:
/// another thread writes into a pipe twice in a millisecond while the probe lives.
class InputProbe
{
public:
    InputProbe();
    ~InputProbe();

    /// In milliseconds, of what has been read up to now.
    [[nodiscard]] double longestWait() const { return m_longestWait; }

private:
    void read();

    std::array<int, 2> m_pipe{};
    double m_longestWait = 0;
    QSocketNotifier m_notifier{QSocketNotifier::Read};
    std::jthread m_writer;
};

} // namespace tarnwick::bench
