// SPDX-License-Identifier: MIT
#include "bench.h"
#include "figure.h"

#include <QApplication>

/// tarnwick_bench FOLDER [--quick] [GROUP...]: measures these groups of figures, or all, on a
/// desktop without a panel, over the repositories that make_repositories.sh has made in FOLDER.
/// Fails if a target is missed. The quick form takes fewer rounds and leaves out what takes long.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QString folder = QApplication::arguments().value(1);
    QStringList groups = QApplication::arguments().mid(2);
    const bool quick = groups.removeAll(QStringLiteral("--quick")) > 0;
    const auto isWanted = [&](const QString& group) {
        return groups.isEmpty() || groups.contains(group);
    };

    using namespace tarnwick::bench;
    openReport(quick ? 9 : 25);
    Bench bench(folder);
    if (isWanted(QStringLiteral("git")))
        measureGit(bench, quick);
    if (isWanted(QStringLiteral("menu")))
        measureMenus(bench);
    if (isWanted(QStringLiteral("process")))
        measureProcesses(bench.dirs(100), quick);
    if (!quick && isWanted(QStringLiteral("peers")))
        comparePeers(bench);
    if (!quick && isWanted(QStringLiteral("unranked")))
        measureUnranked(bench);
    return exitStatus();
}
