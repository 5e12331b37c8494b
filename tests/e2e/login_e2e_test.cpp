// SPDX-License-Identifier: MIT
#include "e2e/desktop.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QDir>
#include <QSettings>
#include <QTest>

#include <csignal>

using namespace tarnwick::test;

/// The desktop's part is played by gio, which starts what the autostart entry says.
class LoginE2eTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loginStartsOneCopy()
    {
        const QString application = u"org.tarnwick.Tarnwick"_s;
        const QString helper = u"org.tarnwick.TarnwickLauncher"_s;
        QDBusConnection bus = QDBusConnection::sessionBus();
        QVERIFY(bus.connect({}, {}, u"org.tarnwick.DistributedNotifications"_s, u"Posted"_s, this,
                            SLOT(note(QString, QString))));
        const QString entry =
            qEnvironmentVariable("XDG_CONFIG_HOME") + u"/autostart/"_s + helper + u".desktop"_s;

        QProcess first;
        first.start(QStringLiteral(TARNWICK_PROGRAM), QStringList());
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(entry), 10000);
        first.terminate();
        QVERIFY(first.waitForFinished());

        QCOMPARE(QProcess::execute(u"gio"_s, {u"launch"_s, entry}), 0);
        QTRY_COMPARE_WITH_TIMEOUT(m_notes, QStringList{u"killTarnwickLauncher "_s + application},
                                  10000);
        QTRY_VERIFY(!runs(helper));
        QVERIFY(runs(application));

        const QString program =
            QSettings(entry, QSettings::IniFormat).value(u"Desktop Entry/TryExec"_s).toString();
        QCOMPARE(QProcess::execute(program), 0); // another login while it runs
        QProcess second;
        second.start(QStringLiteral(TARNWICK_PROGRAM), QStringList());
        QVERIFY(second.waitForFinished());
        QCOMPARE(second.readAllStandardError(), "Tarnwick is already running\n");
        QVERIFY(!appeared(u"Refresh all"_s).name.isEmpty()); // which is in the menu
        QCOMPARE(copies(), 1);
        QCOMPARE(m_notes.size(), 1);
        QVERIFY(act(application, u"settings"_s) && windowIsActive(u"Settings"_s));
        QVERIFY(act(application, u"quit"_s));
        QTRY_COMPARE(copies(), 0);

        const QString service = u"/dbus-1/services/"_s + application + u".service"_s;
        QVERIFY(QDir().mkpath(qEnvironmentVariable("XDG_DATA_HOME") + u"/dbus-1/services"_s));
        QVERIFY(QFile::copy(QStringLiteral(TARNWICK_INSTALLED "/share") + service,
                            qEnvironmentVariable("XDG_DATA_HOME") + service));
        QCOMPARE(QProcess::execute(u"gapplication"_s, {u"launch"_s, application}), 0);
        QVERIFY(!appeared(u"Refresh all"_s).name.isEmpty());
        ::kill(static_cast<pid_t>(bus.interface()->servicePid(application)), SIGTERM);
        QTRY_COMPARE(copies(), 0);
    }

    void managesWithoutBusAndReader()
    {
        const QTemporaryDir config;
        writeFile(config.filePath(u"tarnwick/preferences.json"_s), R"({"repos": "/nonexistent"})");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_CONFIG_HOME"_s, config.path());
        // The library of the buses ignores SIGPIPE itself.
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nonexistent"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"XDG_RUNTIME_DIR"_s, config.path());
        writeFile(config.filePath(u"org.tarnwick.Tarnwick.lock"_s), "cut off by a crash");
        QProcess program;
        program.setProcessEnvironment(environment);
        QProcess reader;
        program.setStandardOutputProcess(&reader);
        program.start(QStringLiteral(TARNWICK_PROGRAM), QStringList());
        reader.start(u"head"_s, {u"-n1"_s});
        QTRY_VERIFY_WITH_TIMEOUT(QDir(config.filePath(u"autostart"_s)).exists(), 10000);
        QCOMPARE(reader.readAll(), "No session bus found; doing without.\n");
        QProcess second;
        second.setProcessEnvironment(environment);
        second.start(QStringLiteral(TARNWICK_PROGRAM), QStringList());
        QVERIFY(second.waitForFinished());
        QCOMPARE(second.readAllStandardOutput(), "");
        QCOMPARE(program.state(), QProcess::Running);
        program.terminate();
        QVERIFY(program.waitForFinished());
    }

public Q_SLOTS:
    void note(const QString& name, const QString& object) { m_notes += name + u' ' + object; }

private:
    static bool runs(const QString& identifier)
    {
        return QDBusConnection::sessionBus().interface()->isServiceRegistered(identifier);
    }
    static bool act(const QString& application, const QString& action)
    {
        return QProcess::execute(u"gapplication"_s, {u"action"_s, application, action}) == 0;
    }
    static qsizetype copies()
    {
        const QStringList processes = QDir(u"/proc"_s).entryList({u"[1-9]*"_s});
        return std::count_if(processes.begin(), processes.end(), [](const QString& process) {
            return QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(process)) ==
                   QStringLiteral(TARNWICK_PROGRAM);
        });
    }

    QStringList m_notes;
};

TARNWICK_TEST(LoginE2eTest)

#include "login_e2e_test.moc"
