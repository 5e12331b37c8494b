// SPDX-License-Identifier: MIT
#include "platform/freedesktop/autostart_entry.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <sys/stat.h>

using namespace tarnwick::test;

class AutostartEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAnyPath()
    {
        const QString program = m_root.filePath(u"a \"b\" 'c' $HOME `d` \\s \\\\ \n;&é/run"_s);
        writeFile(program, "#!/bin/sh\ntouch \"$0.started\"\n");
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
        const QString file = m_root.filePath(u"new/x.y.Helper.desktop"_s);
        writeFile(file, "[Desktop Entry]\nHidden=true\n");
        const LoginItemFile entry = autostartEntry(m_root.filePath(u"new"_s), m_name, program);
        QVERIFY(entry.write());
        const QDateTime written = QFileInfo(file).fileTime(QFile::FileMetadataChangeTime);
        QCOMPARE(QProcess::execute(u"gio"_s, {u"launch"_s, file}), 0);
        QTRY_VERIFY(QFile::exists(program + u".started"_s));

        QVERIFY(entry.write());
        QCOMPARE(QFileInfo(file).fileTime(QFile::FileMetadataChangeTime), written);
        QVERIFY(entry.remove());
        QVERIFY(!QFile::exists(file));
        QVERIFY(entry.remove());
    }

    void refuses_data()
    {
        const auto row = table<QString, QString>("folder", "program");
        // What a device would be to root, a pipe is to this test.
        const QString masked = m_root.filePath(u"masked"_s);
        QVERIFY(QDir().mkpath(masked));
        QCOMPARE(::mkfifo(QFile::encodeName(masked + u"/pipe"_s).constData(), 0600), 0);
        QVERIFY(QFile::link(u"pipe"_s, masked + u"/x.y.Helper.desktop"_s));
        row("masked", masked, u"/bin/sh"_s);
        row("not writable", u"/proc/autostart"_s, u"/bin/sh"_s);
        row("no program", m_root.path(), m_root.path());
    }

    void refuses()
    {
        QFETCH(QString, folder);
        QFETCH(QString, program);
        QVERIFY(!autostartEntry(folder, m_name, program).write());
    }

private:
    const QTemporaryDir m_root;
    const QString m_name = u"x.y.Helper"_s;
};

TARNWICK_TEST(AutostartEntryTest)

#include "autostart_entry_test.moc"
