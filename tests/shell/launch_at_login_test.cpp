// SPDX-License-Identifier: MIT
#include "model/bundle_info.h"
#include "shell/launch_at_login.h"
#include "support/recording_login_services.h"
#include "support/stops_process.h"
#include "support/test_registry.h"
#include "support/workbench.h"

#include <QTemporaryFile>

using namespace tarnwick::test;

class LaunchAtLoginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void start_data()
    {
        const auto row = table<QVariant, QStringList, int, QStringList>("stored", "running",
                                                                        "refusals", "calls");
        const QStringList others{u":1.1"_s, m_helper.toLower(), m_helper + u'2'};
        const QStringList two{m_helper, u"x.y.App"_s, m_helper};
        const QString post = u"post killTarnwickLauncher x.y.App"_s;
        const QString set = u"register "_s + m_helper;
        row("first", {}, others, 0, {set});
        row("refused", {}, others, 1, {set, set});
        row("refused twice", true, others, 2, {set, set});
        row("helpers", true, two, 0, {post, set});
        row("off", false, two, 0, {post});
    }

    void start()
    {
        QFETCH(QVariant, stored);
        QFETCH(QStringList, running);
        QFETCH(int, refusals);
        Workbench bench;
        bench.store.setBool(true, u"another"_s);
        if (stored.isValid())
            bench.store.setBool(stored.toBool(), u"launchOnStartup"_s);
        RecordingLoginServices services;
        services.running = running;
        services.refusals = refusals;
        const auto start = [&](const QJsonObject& bundle) {
            LaunchAtLogin(services, bench.store, BundleInfo(bundle), m_helper).startLaunchAtLogin();
        };
        start({{u"CFBundleIdentifier"_s, u"x.y.App"_s}});
        QTEST(services.calls, "calls");
        QCOMPARE(bench.store.boolForKey(u"launchOnStartup"_s),
                 !stored.isValid() || stored.toBool());
        QCOMPARE(stopsProcess([&] { start({}); }), running.contains(m_helper));
    }

    void refusedToggle()
    {
        Workbench bench;
        RecordingLoginServices services;
        services.refusals = 1;
        QTemporaryFile printed;
        QVERIFY(printed.open());
        const int terminal = dup(STDOUT_FILENO);
        dup2(printed.handle(), STDOUT_FILENO);
        const BundleInfo bundle({});
        LaunchAtLogin launch(services, bench.store, bundle, m_helper);
        launch.setLaunchAtLogin(false);
        launch.setLaunchAtLogin(true);
        dup2(terminal, STDOUT_FILENO);
        close(terminal);
        QVERIFY(printed.seek(0));

        const QString off = u"unregister "_s + m_helper;
        QCOMPARE(services.calls, (QStringList{off, off, u"register "_s + m_helper}));
        QCOMPARE(printed.readAll(), QByteArray("1. Set launch to false, result: false\n"
                                               "2. Set launch to false, result: false\n"
                                               "1. Set launch to true, result: true\n"));
        QVERIFY(bench.store.dictionaryRepresentation().isEmpty());
    }

private:
    const QString m_helper = u"x.y.TarnwickLauncher"_s;
};

TARNWICK_TEST(LaunchAtLoginTest)

#include "launch_at_login_test.moc"
