// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace tarnwick::test {

/// Whether the action, played through in a forked copy of this process, ends it by an abort.
inline bool stopsProcess(const std::function<void()>& action)
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGABRT, SIG_DFL);
        action();
        _exit(0);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFSIGNALED(status) &&
           WTERMSIG(status) == SIGABRT;
}

} // namespace tarnwick::test
