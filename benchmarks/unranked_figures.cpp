// SPDX-License-Identifier: MIT
#include "bare_git.h"
#include "bench.h"
#include "figure.h"
#include "waiting.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

namespace tarnwick::bench {

namespace {

void measure(
    Bench& bench, const QString& what, const QStringList& dirs,
    const std::function<void()>& before = [] {})
{
    const BareGit bare(dirs);
    const auto list = bench.loaded(dirs);
    Figure time(QStringLiteral("unranked"), what, {}, Figure::Unit::milliseconds);
    Figure ratio(QStringLiteral("unranked"), what + QStringLiteral(" : bare posix_spawn loop"), {});
    while (!ratio.hasEnough()) {
        before();
        const double ours = refreshTime(list->models());
        before();
        time.add(ours);
        ratio.addRatio(ours, bare.refresh().total);
    }
    time.report();
    ratio.report();
}

/// Only root can; returns whether it was done.
bool dropDiskCaches()
{
    ::sync();
    QFile caches(QStringLiteral("/proc/sys/vm/drop_caches"));
    return caches.open(QIODevice::WriteOnly) && caches.write("3") == 1 && caches.flush();
}

} // namespace

void measureUnranked(Bench& bench)
{
    const QDir fresh(bench.path(QStringLiteral("fresh")));
    QStringList clones;
    for (const QString& name : fresh.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        clones += fresh.filePath(name);
    measure(bench, QStringLiteral("refresh of 20 clones whose index is not settled"), clones);
    measure(bench, QStringLiteral("refresh of one with 20 submodules"),
            {bench.path(QStringLiteral("submodules"))});
    measure(bench, QStringLiteral("refresh of one with 100,000 commits, diverged by 3,000"),
            {bench.path(QStringLiteral("diverged"))});
    if (dropDiskCaches())
        measure(bench, QStringLiteral("refresh of 20 repositories, disk caches dropped"),
                bench.dirs(20), [] { dropDiskCaches(); });
    else
        reportSkipped(QStringLiteral("unranked"),
                      QStringLiteral("only root drops the disk caches"));
}

} // namespace tarnwick::bench
