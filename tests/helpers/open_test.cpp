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
        m_bus.start(u"dbus-daemon"_qs, {u"--session"_qs, u"--nofork"_qs, u"--print-address"_qs});
        QVERIFY(m_bus.waitForReadyRead());
        const QString address = QString::fromUtf8(m_bus.readLine().trimmed());
        m_connection = QDBusConnection::connectToBus(address, u"recorders"_qs);
        m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_qs, address);
    }

    void opens_data()
    {
        // Nothing is expected where the command is refused.
        const auto row = table<QByteArray, QStringList, QString, QString>("entry", "arguments",
                                                                          "service", "expected");
        const QString odd = u"it's $(a) %f#\n"_qs;
        const QString file = odd + u"/#1 50% \u00fc"_qs;
        const QStringList app{u"-a"_qs, u"Editor.app"_qs, odd};
        const QString manager = u"org.freedesktop.FileManager1"_qs;
        row("path", "recorder %f", app, {}, u"recorder|"_qs + odd);
        row("words", "recorder -n \"two words\" %F 5%%", app, {},
            u"recorder|-n|two words|"_qs + odd + u"|5%"_qs);
        row("name", "recorder %c %U", app, {}, u"recorder|Editor|"_qs + odd);
        row("no field", "recorder", app, {}, u"recorder|"_qs + odd);
        row("terminal", "recorder %f\nTerminal=true", app, {},
            u"xdg-terminal-exec|recorder|"_qs + odd);
        const QByteArray onBus = "recorder\nDBusActivatable=true";
        row("bus", onBus, app, u"org.tarnwick.Editor"_qs, u"Open|it's%20$(a)%20%25f%23%0A"_qs);
        row("nobody on the bus", onBus, app, {}, {});
        row("file", {}, {u"--reveal"_qs, file}, manager,
            u"ShowItems|it's%20$(a)%20%25f%23%0A/%231%2050%25%20%C3%BC"_qs);
        row("directory", {}, {u"--reveal"_qs, u"d/e/"_qs}, manager, u"ShowItems|d/e"_qs);
        row("link to nowhere", {}, {u"--reveal"_qs, u"d/link"_qs}, manager, u"ShowItems|d/link"_qs);
        row("deleted", {}, {u"--reveal"_qs, u"d/gone/deeper/file"_qs}, manager, u"ShowItems|d"_qs);
        row("no manager", "recorder %f", {u"--reveal"_qs, file}, {}, u"recorder|"_qs + odd);
        row("nothing to do", "recorder", {}, {}, {});
        row("no path", "recorder", {u"--reveal"_qs, {}}, {}, {});
        row("translated name", "recorder", {u"-a"_qs, u"Schreiber"_qs, u"d"_qs}, {}, {});
        row("no such directory", "recorder", {u"-a"_qs, u"Editor"_qs, u"nowhere"_qs}, {}, {});
    }

    void opens()
    {
        QFETCH(QByteArray, entry);
        QFETCH(QStringList, arguments);
        QFETCH(QString, service);
        QFETCH(QString, expected);
        const QTemporaryDir root;
        for (const auto& name : {u"bin/recorder"_qs, u"bin/xdg-terminal-exec"_qs}) {
            writeFile(root.filePath(name),
                      "#!/bin/sh\ncd \"${0%/*}/..\"\nwhile [ ! -e go ]; do sleep 0.02; done\n"
                      "printf '%s|' \"${0##*/}\" \"$@\" >new && mv new record\n");
            QFile::setPermissions(root.filePath(name), QFile::ReadOwner | QFile::ExeOwner);
        }
        writeFile(root.filePath(u"data/applications/org.tarnwick.Editor.desktop"_qs),
                  "[Desktop Entry]\nType=Application\nName=Editor\nName[de]=Schreiber\nExec=" +
                      entry);
        writeFile(root.filePath(u"config/mimeapps.list"_qs),
                  "[Default Applications]\ninode/directory=org.tarnwick.Editor.desktop\n");
        writeFile(root.filePath(u"it's $(a) %f#\n/#1 50% \u00fc"_qs), {});
        QVERIFY(QDir(root.path()).mkpath(u"d/e"_qs));
        QVERIFY(QFile::link(u"nowhere"_qs, root.filePath(u"d/link"_qs)));
        m_environment.insert(u"XDG_DATA_HOME"_qs, root.filePath(u"own"_qs));
        m_environment.insert(u"XDG_DATA_DIRS"_qs, root.filePath(u"data"_qs));
        m_environment.insert(u"XDG_CONFIG_HOME"_qs, root.filePath(u"config"_qs));
        m_environment.insert(u"PATH"_qs, root.filePath(u"bin"_qs) + u":/usr/bin:/bin"_qs);

        BusRecorder recorder;
        QVERIFY(
            m_connection.registerVirtualObject(u"/org"_qs, &recorder, QDBusConnection::SubPath));
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
            writeFile(root.filePath(u"go"_qs), {});
            QFile record(root.filePath(u"record"_qs));
            QTRY_VERIFY(record.exists());
            QVERIFY(record.open(QFile::ReadOnly));
            recorder.calls += QString::fromUtf8(record.readAll().chopped(1));
        }
        const QString got = recorder.calls.join(u' ').remove(u"file://"_qs);
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
