// SPDX-License-Identifier: MIT
#include "shell/launch_at_login.h"
#include "support/recording_login_services.h"
#include "support/stops_process.h"
#include "support/test_registry.h"
#include "support/workbench.h"

#include <QTemporaryFile>
#include <QTest>

using namespace tarnwick;
using namespace tarnwick::test;

namespace {

const QString helper = u"x.y.TarnwickLauncher"_qs;
const QString post = u"post killTarnwickLauncher x.y.App"_qs;
const QString on = u"register "_qs + helper;
const QString off = u"unregister "_qs + helper;

/// What is printed on standard output meanwhile.
QByteArray printedBy(const std::function<void()>& action)
{
    QTemporaryFile file;
    std::fflush(stdout);
    const int terminal = file.open() ? dup(STDOUT_FILENO) : -1;
    dup2(file.handle(), STDOUT_FILENO);
    action();
    dup2(terminal, STDOUT_FILENO);
    close(terminal);
    file.seek(0);
    return file.readAll();
}

} // namespace

class LaunchAtLoginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void start_data();
    void start();
    void toggle_data();
    void toggle();
    void helperWithoutBundleIdentifierStops();
};

void LaunchAtLoginTest::start_data()
{
    QTest::addColumn<std::optional<bool>>("stored");
    QTest::addColumn<QStringList>("running");
    QTest::addColumn<QList<bool>>("answers");
    QTest::addColumn<QStringList>("calls");

    using Stored = std::optional<bool>;
    const QStringList others{u":1.1"_qs, helper.toLower(), helper + u"2"_qs};
    QTest::newRow("first") << Stored() << others << QList{true} << QStringList{on};
    QTest::newRow("on") << Stored(true) << others << QList{true} << QStringList{on};
    QTest::newRow("off") << Stored(false) << others << QList{true} << QStringList{};
    QTest::newRow("refused") << Stored() << others << QList{false, true} << QStringList{on, on};
    QTest::newRow("refused twice")
        << Stored(true) << others << QList{false, false} << QStringList{on, on};
    QTest::newRow("two helpers") << Stored(true) << QStringList{helper, u"x.y.App"_qs, helper}
                                 << QList{true} << QStringList{post, on};
    QTest::newRow("helper, off") << Stored(false) << QStringList{helper} << QList{true}
                                 << QStringList{post};
}

void LaunchAtLoginTest::start()
{
    QFETCH(std::optional<bool>, stored);
    QFETCH(QStringList, running);
    QFETCH(QList<bool>, answers);
    Workbench bench;
    bench.store.setBool(true, u"another"_qs);
    if (stored)
        bench.store.setBool(*stored, u"launchOnStartup"_qs);
    RecordingLoginServices services;
    services.running = running;
    services.answers = answers;
    LaunchAtLogin launch(services, bench.store,
                         BundleInfo({{u"CFBundleIdentifier"_qs, u"x.y.App"_qs}}), helper);
    QCOMPARE(printedBy([&] { launch.startLaunchAtLogin(); }), QByteArray());
    QTEST(services.calls, "calls");
    QCOMPARE(bench.store.dictionaryRepresentation().value(u"launchOnStartup"_qs),
             QVariant(stored.value_or(true)));
}

void LaunchAtLoginTest::toggle_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QList<bool>>("answers");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<QByteArray>("printed");

    QTest::newRow("on") << true << QList{true} << QStringList{on}
                        << QByteArray("1. Set launch to true, result: true\n");
    QTest::newRow("refused") << false << QList{false, true} << QStringList{off, off}
                             << QByteArray("1. Set launch to false, result: false\n"
                                           "2. Set launch to false, result: false\n");
}

void LaunchAtLoginTest::toggle()
{
    QFETCH(bool, enabled);
    QFETCH(QList<bool>, answers);
    Workbench bench;
    RecordingLoginServices services;
    services.answers = answers;
    LaunchAtLogin launch(services, bench.store, BundleInfo({}), helper);
    QTEST(printedBy([&] { launch.setLaunchAtLogin(enabled); }), "printed");
    QTEST(services.calls, "calls");
    QVERIFY(bench.store.dictionaryRepresentation().isEmpty());
}

void LaunchAtLoginTest::helperWithoutBundleIdentifierStops()
{
    Workbench bench;
    RecordingLoginServices services;
    services.running = QStringList{helper};
    LaunchAtLogin launch(services, bench.store, BundleInfo({}), helper);
    QVERIFY(stopsProcess([&] { launch.startLaunchAtLogin(); }));
}

TARNWICK_TEST(LaunchAtLoginTest)

#include "launch_at_login_test.moc"
