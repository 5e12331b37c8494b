// SPDX-License-Identifier: MIT
#include "bare_git.h"

#include "model/git_environment.h"
#include "platform/background_priority.h"
#include "platform/program_output.h"

#include <QElapsedTimer>
#include <QThread>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <semaphore>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tarnwick::bench {

namespace {

void drain(int descriptor)
{
    std::array<char, 65536> buffer;
    while (::read(descriptor, buffer.data(), buffer.size()) > 0) {
    }
    ::close(descriptor);
}

void runGit(const QString& dir, const QStringList& arguments)
{
    static const CStrings environment(entriesOf(gitEnvironment(inheritedEnvironment())));
    QList<QByteArray> words{"git", "-C", dir.toUtf8()};
    for (const QString& argument : arguments)
        words += argument.toUtf8();
    const CStrings command(words);
    std::array<int, 2> out{};
    std::array<int, 2> error{};
    if (::pipe2(out.data(), O_CLOEXEC) != 0 || ::pipe2(error.data(), O_CLOEXEC) != 0)
        std::abort();
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, error[1], STDERR_FILENO);
    pid_t child = 0;
    if (::posix_spawn(&child, "/usr/bin/git", &actions, nullptr, command.data(),
                      environment.data()) != 0)
        std::abort();
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(out[1]);
    ::close(error[1]);
    drain(out[0]);
    drain(error[0]);
    ::waitpid(child, nullptr, 0);
}

double milliseconds(const QElapsedTimer& timer)
{
    return static_cast<double>(timer.nsecsElapsed()) * 1e-6;
}

} // namespace

BareGit::Times BareGit::run(bool withRemote, const std::function<void()>& afterQueries) const
{
    QElapsedTimer sinceStart;
    sinceStart.start();
    std::counting_semaphore<> scheduled(0);
    std::atomic<qsizetype> next = 0;
    std::vector<std::jthread> threads;
    for (int i = 0; i < QThread::idealThreadCount(); ++i) {
        threads.emplace_back([&] {
            enterBackgroundPriority();
            for (qsizetype job = next++; job < m_dirs.size(); job = next++) {
                scheduled.acquire();
                runGit(m_dirs[job], {QStringLiteral("status"), QStringLiteral("-sb")});
            }
        });
    }

    Times times;
    const auto query = [&times](const QString& dir, const QStringList& arguments) {
        QElapsedTimer sinceQuery;
        sinceQuery.start();
        runGit(dir, arguments);
        times.longestQuery = std::max(times.longestQuery, milliseconds(sinceQuery));
    };
    for (const QString& dir : m_dirs) {
        scheduled.release();
        query(dir, {QStringLiteral("rev-parse"), QStringLiteral("--symbolic-full-name"),
                    QStringLiteral("--abbrev-ref"), QStringLiteral("HEAD")});
        if (withRemote)
            query(dir, {QStringLiteral("config"), QStringLiteral("--get"),
                        QStringLiteral("remote.origin.url")});
    }
    afterQueries();
    threads.clear();
    times.total = milliseconds(sinceStart);
    return times;
}

} // namespace tarnwick::bench
