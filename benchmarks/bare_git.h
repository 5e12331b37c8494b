// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>

namespace tarnwick::bench {

/// Runs the commands of the program by nothing but `posix_spawn` and reads what they print: the
/// status of each repository on low-priority threads, as many as the machine has cores, and its
/// other queries one after the other on the calling thread.
class BareGit
{
public:
    /// In milliseconds.
    struct Times
    {
        double total = 0;
        /// Of those on the calling thread.
        double longestQuery = 0;
    };

    explicit BareGit(QStringList dirs)
        : m_dirs(std::move(dirs))
    {}

    [[nodiscard]] Times refresh() const
    {
        return run(false, [] {});
    }
    /// `afterQueries` runs when the calling thread has done its part.
    Times load(const std::function<void()>& afterQueries = [] {}) const
    {
        return run(true, afterQueries);
    }

private:
    Times run(bool withRemote, const std::function<void()>& afterQueries) const;

    QStringList m_dirs;
};

} // namespace tarnwick::bench
