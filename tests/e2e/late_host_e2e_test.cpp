// SPDX-License-Identifier: MIT
#include "e2e/desktop.h"
#include "support/test_registry.h"

#include <QTest>

using namespace tarnwick::test;

/// The race at log-in: the program is up before the panel is.
class LateHostE2eTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itemFollowsTheHost_data()
    {
        const auto row = table<QString>("host");
        row("status notifier host", u"xfce4-panel"_s);
        row("XEmbed host", u"xembed-tray"_s);
    }

    void itemFollowsTheHost()
    {
        QFETCH(QString, host);
        RunningProgram program;
        QTRY_COMPARE_WITH_TIMEOUT(program.printedCount(u"No status bar found; waiting for one."_s),
                                  1, 15000);
        QVERIFY(statusItemPosition().isNull());
        const QString advice =
            u"Open the settings (the gear) and add some repositories to get started!"_s;
        QCOMPARE(QProcess::execute(QStringLiteral(TARNWICK_PROGRAM)), 0);
        QVERIFY(windowIsActive(u"Tarnwick"_s) && !appeared(advice).name.isEmpty());
        xdotool({u"getactivewindow"_s, u"windowminimize"_s, u"--sync"_s});
        QCOMPARE(QProcess::execute(QStringLiteral(TARNWICK_PROGRAM)), 0);
        QVERIFY(windowIsActive(u"Tarnwick"_s));
        key(u"Escape"_s);
        QTRY_VERIFY(accessibleNamed(advice).name.isEmpty());

        // The item comes back when the panel is restarted.
        for (int start = 1; start <= 2; ++start) {
            QProcess panel;
            panel.start(QStringLiteral(TARNWICK_SCRIPTS "/tray_host.sh"), {host});
            QVERIFY(openMenu());
            QVERIFY(menuRows().isEmpty());
            QCOMPARE(accessibleNamed(advice).area.height(), 140);
            key(u"Escape"_s);
            panel.terminate();
            QVERIFY(panel.waitForFinished());
            QTRY_VERIFY(statusItemPosition().isNull());
        }
    }
};

TARNWICK_TEST(LateHostE2eTest)

#include "late_host_e2e_test.moc"
