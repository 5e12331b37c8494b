// SPDX-License-Identifier: MIT
#include "bare_git.h"
#include "bench.h"
#include "figure.h"
#include "input_probe.h"
#include "opened_menu.h"
#include "shell/menu/status_menu.h"
#include "waiting.h"

#include <QApplication>

namespace tarnwick::bench {

namespace {

constexpr qsizetype listSize = 100;

void measureRefresh(Bench& bench)
{
    const QStringList dirs = bench.dirs(listSize);
    const BareGit bare(dirs);
    const auto list = bench.loaded(dirs);
    const auto menu = bench.menu().buildMenu(*list); // its rows follow the records
    Figure figure(
        QStringLiteral("refresh"),
        QStringLiteral("refresh of %1 repositories : bare posix_spawn loop").arg(listSize), 1.05);
    while (!figure.hasEnough()) {
        const bool isFirst = figure.rounds() % 2 == 0;
        const double before = isFirst ? refreshTime(list->models()) : 0;
        const double theirs = bare.refresh().total;
        figure.addRatio(isFirst ? before : refreshTime(list->models()), theirs);
    }
    figure.report();
}

void measureLoad(Bench& bench)
{
    const QStringList dirs = bench.dirs(listSize);
    const BareGit bare(dirs);
    const auto load = [&] { return duration([&] { static_cast<void>(bench.loaded(dirs)); }); };
    Figure figure(QStringLiteral("load"),
                  QStringLiteral("loading %1 repositories : bare posix_spawn loop").arg(listSize),
                  1.05);
    while (!figure.hasEnough()) {
        const bool isFirst = figure.rounds() % 2 == 0;
        const double before = isFirst ? load() : 0;
        const double theirs = bare.load().total;
        figure.addRatio(isFirst ? before : load(), theirs);
    }
    figure.report();
}

/// Both maxima grow with whatever else the machine does, so they are taken from the same round.
void measureFreeze(Bench& bench)
{
    const QStringList dirs = bench.dirs(listSize);
    const BareGit bare(dirs);
    const auto list = bench.loaded(dirs);
    const auto menu = bench.menu().buildMenu(*list);
    Figure queries(QStringLiteral("freeze"),
                   QStringLiteral("longest wait of input in a refresh of %1 : longest branch query")
                       .arg(listSize),
                   1.5);
    Figure wait(QStringLiteral("freeze"), QStringLiteral("the same in milliseconds"), {},
                Figure::Unit::milliseconds);
    while (!queries.hasEnough()) {
        const double longestWait = [&] {
            const InputProbe probe;
            static_cast<void>(refreshTime(list->models()));
            return probe.longestWait();
        }();
        wait.add(longestWait);
        queries.addRatio(longestWait, bare.refresh().longestQuery);
    }
    queries.report();
    wait.report();
}

void measureGrowth(Bench& bench)
{
    const auto few = bench.loaded(bench.dirs(100));
    const auto many = bench.loaded(bench.dirs(500));
    Figure figure(QStringLiteral("growth"),
                  QStringLiteral("refresh of 500 repositories : refresh of 100"), 5.1);
    while (!figure.hasEnough())
        figure.addRatio(refreshTime(many->models()), refreshTime(few->models()));
    figure.report();
}

void measureHuge(Bench& bench)
{
    const auto list = bench.loaded({bench.path(QStringLiteral("huge"))});
    Figure publish(QStringLiteral("huge"),
                   QStringLiteral("publishing 100,000 changed files holds the main thread"), 40,
                   Figure::Unit::milliseconds);
    Figure open(QStringLiteral("huge"), QStringLiteral("opening their panel holds it"), 15,
                Figure::Unit::milliseconds);
    while (!publish.hasEnough() || !open.hasEnough()) {
        const auto menu = bench.menu().buildMenu(*list);
        {
            const InputProbe probe;
            Published published(list->models());
            list->models().front()->refreshStatusInBackground();
            list->models().front()->refreshBranch();
            published.wait();
            QApplication::processEvents();
            publish.add(probe.longestWait());
        }
        openMenu(*menu);
        const InputProbe probe;
        openPanel(*menu);
        open.add(probe.longestWait());
    }
    publish.report();
    open.report();
}

} // namespace

void measureGit(Bench& bench, bool quick)
{
    measureRefresh(bench);
    measureLoad(bench);
    measureFreeze(bench);
    if (!quick)
        measureGrowth(bench);
    measureHuge(bench);
}

} // namespace tarnwick::bench
