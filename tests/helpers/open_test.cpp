// SPDX-License-Identifier: MIT
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QSignalSpy>

using namespace tarnwick::test;

/// A file manager or an application on the bus: takes note of the addresses that it is given.
class BusRecorder : public QDBusVirtualObject
{
public:
    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        calls += message.member() + u' ' + message.arguments().value(0).toStringList().join(u' ');
        return connection.send(message.createReply());
    }

    QStringList calls;
};

class OpenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void startsApplication_data();
    void startsApplication();
    void asksOverTheBus_data();
    void asksOverTheBus();
    void opensTheFolderInstead();
    void refuses_data();
    void refuses();

private:
    /// The exit status. Our event loop goes on meanwhile, so that we can answer over the bus.
    int open(const QStringList& arguments) const
    {
        QProcess program;
        program.setProcessEnvironment(m_environment);
        QSignalSpy finished(&program, &QProcess::finished);
        program.start(QStringLiteral(TARNWICK_OPEN), arguments);
        return finished.wait() && program.readAllStandardError().isEmpty() == !program.exitCode()
                   ? program.exitCode()
                   : -1;
    }

    void install(const QString& file, const QByteArray& content) const
    {
        writeFile(path(u"data/applications/"_qs + file),
                  "[Desktop Entry]\nType=Application\n" + content);
    }

    /// What the recorder was started with. It has waited until now, and so outlived its starter.
    QByteArrayList recorded() const
    {
        writeFile(path(u"go"_qs), {});
        QFile record(path(u"record"_qs));
        const bool there = QTest::qWaitFor([&] { return record.open(QFile::ReadOnly); });
        return there ? record.readAll().chopped(1).split('\0') : QByteArrayList();
    }

    QString path(const QString& name) const { return m_root->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_root;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    QProcess m_bus;
    QDBusConnection m_connection{QString()};
};

void OpenTest::initTestCase()
{
    m_bus.start(u"dbus-daemon"_qs, {u"--session"_qs, u"--nofork"_qs, u"--print-address"_qs});
    QVERIFY(m_bus.waitForReadyRead());
    const QString address = QString::fromUtf8(m_bus.readLine().trimmed());
    m_connection = QDBusConnection::connectToBus(address, u"recorders"_qs);
    m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_qs, address);
}

void OpenTest::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    m_environment.insert(u"XDG_DATA_HOME"_qs, path(u"own"_qs));
    m_environment.insert(u"XDG_DATA_DIRS"_qs, path(u"data"_qs));
    m_environment.insert(u"XDG_CONFIG_HOME"_qs, path(u"config"_qs));
    m_environment.insert(u"PATH"_qs, path(u"bin"_qs) + u":/usr/bin:/bin"_qs);
    for (const auto& name : {u"bin/recorder"_qs, u"bin/xdg-terminal-exec"_qs}) {
        writeFile(path(name),
                  "#!/bin/sh\ncd \"${0%/*}/..\"\nwhile [ ! -e go ]; do sleep 0.02; done\n"
                  "printf '%s\\0' \"${0##*/}\" \"$@\" >new && mv new record\n");
        QFile::setPermissions(path(name), QFile::ReadOwner | QFile::ExeOwner);
    }
    install(u"editor.desktop"_qs, "Name=Editor\nName[de]=Schreiber\nExec=recorder\n");
    install(u"org.tarnwick.Bus.desktop"_qs, "Name=Bus\nExec=recorder\nDBusActivatable=true\n");
}

void OpenTest::cleanupTestCase()
{
    m_bus.terminate();
    m_bus.waitForFinished();
}

void OpenTest::startsApplication_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArrayList>("expected");
    const auto row = [](const QByteArray& command, const QByteArrayList& expected) {
        QTest::newRow(command.constData()) << command << expected;
    };
    row("recorder %f", {"recorder", "PATH"});
    row("recorder -n \"two words\" %F 5%%", {"recorder", "-n", "two words", "PATH", "5%"});
    row("recorder %c %U", {"recorder", "Editor", "PATH"});
    row("recorder", {"recorder", "PATH"});
    row("recorder %f\nTerminal=true", {"xdg-terminal-exec", "recorder", "PATH"});
}

void OpenTest::startsApplication()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArrayList, expected);
    const QString dir = path(u"it's $(a) %f#"_qs);
    QVERIFY(QDir().mkpath(dir));
    std::replace(expected.begin(), expected.end(), QByteArray("PATH"), dir.toUtf8());
    install(u"editor.desktop"_qs, "Name=Editor\nName[de]=Schreiber\nExec=" + command + '\n');
    QCOMPARE(open({u"-a"_qs, u"Editor.app"_qs, dir}), 0);
    QCOMPARE(recorded(), expected);
}

void OpenTest::asksOverTheBus_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("expected");
    const auto reveal = [](const char* name, const QString& file, const QString& expected) {
        QTest::newRow(name) << QStringList{u"--reveal"_qs, file} << u"ShowItems "_qs + expected;
    };
    QTest::newRow("application") << QStringList{u"-a"_qs, u"Bus"_qs, u"f"_qs} << u"Open f"_qs;
    reveal("file", u"f/#1 50% \u00fc\n"_qs, u"f/%231%2050%25%20%C3%BC%0A"_qs);
    reveal("directory", u"f/"_qs, u"f"_qs);
    reveal("link to nowhere", u"f/link"_qs, u"f/link"_qs);
    reveal("deleted with its folder", u"f/gone/deeper/file"_qs, u"f"_qs);
}

void OpenTest::asksOverTheBus()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, expected);
    writeFile(path(u"f/#1 50% \u00fc\n"_qs), {});
    QVERIFY(QFile::link(u"nowhere"_qs, path(u"f/link"_qs)));
    BusRecorder recorder;
    QVERIFY(m_connection.registerVirtualObject(u"/org"_qs, &recorder, QDBusConnection::SubPath));
    for (const auto& name : {u"org.freedesktop.FileManager1"_qs, u"org.tarnwick.Bus"_qs})
        QVERIFY(m_connection.registerService(name));
    arguments.last() = path(arguments.last());
    QCOMPARE(open(arguments), 0);
    for (const auto& name : {u"org.freedesktop.FileManager1"_qs, u"org.tarnwick.Bus"_qs})
        QVERIFY(m_connection.unregisterService(name));
    QCOMPARE(recorder.calls,
             QStringList(expected.replace(u" f"_qs, u" file://"_qs + path(u"f"_qs))));
}

void OpenTest::opensTheFolderInstead()
{
    writeFile(path(u"a b/script.sh"_qs), "#!/bin/sh\n");
    install(u"files.desktop"_qs, "Name=Files\nExec=recorder %f\n");
    writeFile(path(u"config/mimeapps.list"_qs),
              "[Default Applications]\ninode/directory=files.desktop\n");
    QCOMPARE(open({u"--reveal"_qs, path(u"a b/script.sh"_qs)}), 0);
    QCOMPARE(recorded(), (QByteArrayList{"recorder", path(u"a b"_qs).toUtf8()}));
}

void OpenTest::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::newRow("nothing to do") << QStringList() << 64;
    QTest::newRow("no directory") << QStringList{u"-a"_qs, u"Editor"_qs} << 64;
    QTest::newRow("empty path") << QStringList{u"--reveal"_qs, {}} << 64;
    QTest::newRow("unknown application") << QStringList{u"-a"_qs, u"Schreiber"_qs, u"/"_qs} << 1;
    QTest::newRow("no such directory") << QStringList{u"-a"_qs, u"Editor"_qs, u"/nowhere"_qs} << 1;
    QTest::newRow("not to be started") << QStringList{u"-a"_qs, u"Bus"_qs, u"/"_qs} << 1;
    QTest::newRow("no file manager") << QStringList{u"--reveal"_qs, u"/tmp"_qs} << 1;
}

void OpenTest::refuses()
{
    QFETCH(QStringList, arguments);
    QTEST(open(arguments), "status");
    QVERIFY(!QFile::exists(path(u"record"_qs)));
}

TARNWICK_TEST(OpenTest)

#include "open_test.moc"
