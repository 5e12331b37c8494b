// SPDX-License-Identifier: MIT
#include "platform/process_tree.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QThread>

#include <algorithm>
#include <csignal>
#include <unistd.h>

namespace tarnwick {

namespace {

using ParentByProcess = QHash<qint64, qint64>;

/// All processes but those that have ended already (/proc/PID/stat, proc(5)).
ParentByProcess runningProcesses()
{
    ParentByProcess parents;
    for (const QString& name :
         QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")})) {
        QFile file(QStringLiteral("/proc/%1/stat").arg(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray line = file.readAll();
        // The name of the program, which may hold anything, ends at the last parenthesis.
        const QByteArrayList fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        if (fields.size() > 1 && fields[0] != "Z" && fields[0] != "X")
            parents.insert(name.toLongLong(), fields[1].toLongLong());
    }
    return parents;
}

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
