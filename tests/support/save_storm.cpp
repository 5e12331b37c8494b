// SPDX-License-Identifier: MIT
// save_storm FILE: says what number the stored list begins with, then saves lists with ever higher
// numbers and toggles a switch, until it is killed. Each number is said once it is on the disk.
#include "model/diagnostics.h"
#include "model/preference_keys.h"
#include "model/repo_manager.h"
#include "support/workbench.h"

#include <QCoreApplication>
#include <QTimer>

int main(int argc, char* argv[])
{
    using namespace tarnwick;
    const QCoreApplication application(argc, argv);
    PreferencesStore store(QCoreApplication::arguments().value(1));
    test::Workbench bench;
    RepoManager list(store, bench.services(), [] { return std::make_shared<test::NoDelegate>(); });
    int number = list.models().empty() ? 0 : list.models().front()->name().toInt();
    writeDiagnosticLine(QStringLiteral("loaded %1").arg(number));

    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        store.setBool(++number % 2 != 0, preferences::onlyIcons.key);
        while (list.models().size() > 20)
            list.remove(*list.models().back());
        list.add(QStringLiteral("/nonexistent/%1").arg(number), nullptr);
        writeDiagnosticLine(QStringLiteral("saved %1").arg(number));
        store.setBool(number % 2 == 0, preferences::onlyIcons.key);
    });
    timer.start(0);
    return QCoreApplication::exec();
}
