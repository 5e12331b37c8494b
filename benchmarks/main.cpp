// SPDX-License-Identifier: MIT
#include "bench.h"
#include "figure.h"

#include <QApplication>

/// tarnwick_bench FOLDER [--quick]: measures on a desktop without a panel, over the repositories
/// that make_repositories.sh has made in FOLDER. Fails if a target is missed.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList arguments = QApplication::arguments();
    const bool quick = arguments.contains(QStringLiteral("--quick"));

    using namespace tarnwick::bench;
    openReport();
    Bench bench(arguments.value(1));
    measureGit(bench, quick);
    measureMenus(bench);
    measureProcesses(bench.dirs(100), quick);
    if (!quick) {
        comparePeers(bench);
        measureUnranked(bench);
    }
    return exitStatus();
}
