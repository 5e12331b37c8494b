// SPDX-License-Identifier: MIT
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QSignalSpy>

using namespace tarnwick::test;

/// A file manager or an application on the bus: takes note of what it is asked for.
class BusRecorder : public QDBusVirtualObject
{
public:
    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        calls += message.member() + u'|' + message.arguments().value(0).toStringList().join(u'|');
        return connection.send(message.createReply());
    }

    QStringList calls;
};

class OpenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        QVERIFY(m_bus.waitForReadyRead());
        const QString address = QString::fromUtf8(m_bus.readLine().trimmed());
        m_connection = QDBusConnection::connectToBus(address, u"recorders"_s);
        m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);
    }

    void opens_data()
    {
        // Nothing is expected where the command is refused.
        const auto row = table<QByteArray, QStringList, QString, QString>("entry", "arguments",
                                                                          "service", "expected");
        const QString odd = u"it's $(a) %f#\n"_s;
        const QString file = odd + u"/#1 50% \u00fc"_s;
        const QStringList app{u"-a"_s, u"Editor.app"_s, odd};
        const QString manager = u"org.freedesktop.FileManager1"_s;
        row("path", "recorder %f", app, {}, u"recorder|"_s + odd);
        row("words", "recorder -n \"two words\" %F 5%%", app, {},
            u"recorder|-n|two words|"_s + odd + u"|5%"_s);
        row("name", "recorder %c %U", app, {}, u"recorder|Editor|"_s + odd);
        row("no field", "recorder", app, {}, u"recorder|"_s + odd);
        row("terminal", "recorder %f\nTerminal=true", app, {},
            u"xdg-terminal-exec|recorder|"_s + odd);
        const QByteArray onBus = "recorder\nDBusActivatable=true";
        row("bus", onBus, app, u"org.tarnwick.Editor"_s, u"Open|it's%20$(a)%20%25f%23%0A"_s);
        row("nobody on the bus", onBus, app, {}, {});
        row("file", {}, {u"--reveal"_s, file}, manager,
            u"ShowItems|it's%20$(a)%20%25f%23%0A/%231%2050%25%20%C3%BC"_s);
        row("directory", {}, {u"--reveal"_s, u"d/e/"_s}, manager, u"ShowItems|d/e"_s);
        row("link to nowhere", {}, {u"--reveal"_s, u"d/link"_s}, manager, u"ShowItems|d/link"_s);
        row("deleted", {}, {u"--reveal"_s, u"d/gone/deeper/file"_s}, manager, u"ShowItems|d"_s);
        row("no manager", "recorder %f", {u"--reveal"_s, file}, {}, u"recorder|"_s + odd);
        row("nothing to do", "recorder", {}, {}, {});
        row("no path", "recorder", {u"--reveal"_s, {}}, {}, {});
        row("translated name", "recorder", {u"-a"_s, u"Schreiber"_s, u"d"_s}, {}, {});
        row("no such directory", "recorder", {u"-a"_s, u"Editor"_s, u"nowhere"_s}, {}, {});
    }

    void opens()
    {
        QFETCH(QByteArray, entry);
        QFETCH(QStringList, arguments);
        QFETCH(QString, service);
        QFETCH(QString, expected);
        const QTemporaryDir root;
        for (const auto& name : {u"bin/recorder"_s, u"bin/xdg-terminal-exec"_s}) {
            writeFile(root.filePath(name),
                      "#!/bin/sh\ncd \"${0%/*}/..\"\n"
                      "while [ ! -e go ]; do sleep 0.02; done\n"
                      "printf '%s|' \"${0##*/}\" \"$@\" >new && mv new record\n");
            QFile::setPermissions(root.filePath(name), QFile::ReadOwner | QFile::ExeOwner);
        }
        writeFile(root.filePath(u"data/applications/org.tarnwick.Editor.desktop"_s),
                  "[Desktop Entry]\nType=Application\nName=Editor\nName[de]=Schreiber\nExec=" +
                      entry);
        writeFile(root.filePath(u"config/mimeapps.list"_s),
                  "[Default Applications]\ninode/directory=org.tarnwick.Editor.desktop\n");
        writeFile(root.filePath(u"it's $(a) %f#\n/#1 50% \u00fc"_s), {});
        QVERIFY(QDir(root.path()).mkpath(u"d/e"_s));
        QVERIFY(QFile::link(u"nowhere"_s, root.filePath(u"d/link"_s)));
        m_environment.insert(u"XDG_DATA_HOME"_s, root.filePath(u"own"_s));
        m_environment.insert(u"XDG_DATA_DIRS"_s, root.filePath(u"data"_s));
        m_environment.insert(u"XDG_CONFIG_HOME"_s, root.filePath(u"config"_s));
        m_environment.insert(u"PATH"_s, root.filePath(u"bin"_s) + u":/usr/bin:/bin"_s);

        BusRecorder recorder;
        QVERIFY(m_connection.registerVirtualObject(u"/org"_s, &recorder, QDBusConnection::SubPath));
        QVERIFY(service.isEmpty() || m_connection.registerService(service));
        QProcess open;
        open.setProcessEnvironment(m_environment);
        open.setWorkingDirectory(root.path());
        QSignalSpy finished(&open, &QProcess::finished);
        open.start(QStringLiteral(TARNWICK_OPEN), arguments);
        QVERIFY(finished.wait());
        QVERIFY(service.isEmpty() || m_connection.unregisterService(service));

        QCOMPARE(open.exitCode() != 0, expected.isEmpty());
        QCOMPARE(open.readAllStandardError().isEmpty(), !expected.isEmpty());
        if (recorder.calls.isEmpty() && !expected.isEmpty()) {
            // Only now may the recorder go on: it must outlive its starter.
            writeFile(root.filePath(u"go"_s), {});
            QFile record(root.filePath(u"record"_s));
            QTRY_VERIFY(record.exists());
            QVERIFY(record.open(QFile::ReadOnly));
            recorder.calls += QString::fromUtf8(record.readAll().chopped(1));
        }
        const QString got = recorder.calls.join(u' ').remove(u"file://"_s);
        QCOMPARE(QString(got).remove(root.path() + u'/'), expected);
    }

    void cleanupTestCase()
    {
        m_bus.terminate();
        m_bus.waitForFinished();
    }

private:
    QProcess m_bus;
    QDBusConnection m_connection{QString()};
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

TARNWICK_TEST(OpenTest)

#include "open_test.moc"
