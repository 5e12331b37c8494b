// SPDX-License-Identifier: MIT
#include "bench.h"
#include "figure.h"
#include "tray_program.h"
#include "waiting.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QStandardPaths>

namespace tarnwick::bench {

namespace {

using namespace std::chrono_literals;

/// The preferences that the program reads at its start.
void writePreferences(const QStringList& dirs)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                           QStringLiteral("/tarnwick");
    QDir().mkpath(folder);
    QFile file(folder + QStringLiteral("/preferences.json"));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("The preferences cannot be written.");
    file.write(QJsonDocument({{QStringLiteral("repos"), dirs.join(u'\n')},
                              {QStringLiteral("refreshOnMenuOpen"), true}})
                   .toJson());
}

TrayProgram ours(StatusNotifierHost& host)
{
    return {host, QStringLiteral(TARNWICK_PROGRAM), {}};
}

/// Shows an item and then runs on its main thread what ours runs there at its start.
TrayProgram bare(StatusNotifierHost& host, const QStringList& dirs)
{
    return {host, QStringLiteral(TARNWICK_BARE_TRAY), dirs};
}

void measureStart(StatusNotifierHost& host, const QStringList& dirs)
{
    Figure figure(QStringLiteral("start"),
                  QStringLiteral("start until the item is shown, %1 repositories : bare Qt "
                                 "program with the bare loop")
                      .arg(dirs.size()),
                  1.15);
    while (!figure.hasEnough()) {
        const double oursTime = ours(host).startTime();
        figure.addRatio(oursTime, bare(host, dirs).startTime());
    }
    figure.report();
}

void measureMemory(StatusNotifierHost& host)
{
    Figure figure(QStringLiteral("memory"),
                  QStringLiteral("100 repositories, menu shown once : bare Qt program, QMenu of "
                                 "100 entries"),
                  1.3);
    const auto sizeAfterOpening = [](TrayProgram program) {
        waitFor(1s);
        program.click();
        program.click();
        return program.proportionalSetSize();
    };
    while (!figure.hasEnough())
        figure.addRatio(sizeAfterOpening(ours(host)), sizeAfterOpening(bare(host, {})));
    figure.report();
}

void measureIdle(StatusNotifierHost& host)
{
    TrayProgram program = ours(host);
    program.click(); // refreshes, too
    program.click();
    waitFor(60s);
    const double before = program.contextSwitches();
    waitFor(30s);
    Figure figure(QStringLiteral("idle"),
                  QStringLiteral("context switches in 30 s, a minute after a refresh"), 2,
                  Figure::Unit::count);
    figure.add(program.contextSwitches() - before);
    figure.report();
}

} // namespace

void measureProcesses(const QStringList& dirs, bool quick)
{
    StatusNotifierHost host;
    writePreferences(dirs);
    measureStart(host, dirs);
    if (quick)
        return;
    measureMemory(host);
    measureIdle(host);
}

} // namespace tarnwick::bench
