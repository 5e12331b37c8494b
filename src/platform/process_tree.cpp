// SPDX-License-Identifier: MIT
#include "platform/process_tree.h"

#include "platform/running_processes.h"

#include <QThread>

#include <algorithm>
#include <csignal>
#include <unistd.h>

namespace tarnwick {

namespace {

void signalAll(const QList<qint64>& processes, int signal)
{
    for (const qint64 process : processes)
        ::kill(static_cast<pid_t>(process), signal);
}

/// Stopped, so that they start nothing while we look.
QList<qint64> stoppedTrees(const QList<qint64>& children)
{
    const ParentByProcess parents = runningProcesses();
    QList<qint64> found;
    for (const qint64 child : children) {
        if (parents.value(child) == ::getpid())
            found += child;
    }
    for (auto added = found; !added.isEmpty();) {
        signalAll(added, SIGSTOP);
        const ParentByProcess now = runningProcesses();
        added.clear();
        for (const auto& [process, parent] : now.asKeyValueRange()) {
            if (found.contains(parent) && !found.contains(process))
                added += process;
        }
        found += added;
    }
    return found;
}

bool haveEnded(const QList<qint64>& processes)
{
    const ParentByProcess running = runningProcesses();
    return std::none_of(processes.begin(), processes.end(),
                        [&running](qint64 process) { return running.contains(process); });
}

bool waitForEnd(const QList<qint64>& processes)
{
    for (int attempt = 0; attempt < 50; ++attempt) {
        if (haveEnded(processes))
            return true;
        QThread::msleep(10);
    }
    return false;
}

} // namespace

void endChildren(const QList<qint64>& children)
{
    if (children.isEmpty())
        return;
    const QList<qint64> processes = stoppedTrees(children);
    signalAll(processes, SIGTERM);
    signalAll(processes, SIGCONT);
    if (waitForEnd(processes))
        return;
    signalAll(processes, SIGKILL);
    waitForEnd(processes);
}

} // namespace tarnwick
