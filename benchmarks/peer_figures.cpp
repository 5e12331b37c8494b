// SPDX-License-Identifier: MIT
#include "bench.h"
#include "figure.h"
#include "waiting.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace tarnwick::bench {

namespace {

void run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(-1);
}

/// The configuration of "mr" for the folder around them.
void configureMr(const QStringList& dirs)
{
    QFile file(QDir::homePath() + QStringLiteral("/.mrconfig"));
    if (!file.open(QIODevice::WriteOnly))
        return;
    for (const QString& dir : dirs)
        file.write(QStringLiteral("[%1]\ncheckout = true\n").arg(dir).toUtf8());
}

void compare(const QString& program, const QStringList& arguments, const RepoManager& list,
             const std::function<void()>& configure)
{
    if (QStandardPaths::findExecutable(program).isEmpty()) {
        reportSkipped(QStringLiteral("peers"), program + QStringLiteral(" is not installed"));
        return;
    }
    configure();
    const QString command = program + u' ' + arguments.join(u' ');
    Figure figure(QStringLiteral("peers"),
                  QStringLiteral("refresh of 100 repositories : ") + command, 1);
    while (!figure.hasEnough()) {
        const double ours = refreshTime(list.models());
        figure.addRatio(ours, duration([&] { run(program, arguments); }));
    }
    figure.report();
}

} // namespace

void comparePeers(Bench& bench)
{
    const QStringList dirs = bench.dirs(100);
    const auto list = bench.loaded(dirs);
    compare(QStringLiteral("gita"), {QStringLiteral("ll")}, *list,
            [&] { run(QStringLiteral("gita"), QStringList{QStringLiteral("add")} + dirs); });
    compare(QStringLiteral("mr"),
            {QStringLiteral("-d"), QFileInfo(dirs.first()).path(), QStringLiteral("-j"),
             QStringLiteral("2"), QStringLiteral("status")},
            *list, [&] { configureMr(dirs); });
}

} // namespace tarnwick::bench
