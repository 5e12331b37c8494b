// SPDX-License-Identifier: MIT
#include "platform/freedesktop/autostart_entry.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QTest>

#include <sys/stat.h>

using namespace tarnwick;
using namespace tarnwick::test;

class AutostartEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyPathIsStarted();
    void switchedOffIsOverwritten();
    void refuses_data();
    void refuses();

private:
    const QTemporaryDir m_root;
    const QString m_folder = m_root.filePath(u"new/autostart"_qs);
    const QString m_file = m_folder + u"/x.y.Helper.desktop"_qs;
};

void AutostartEntryTest::anyPathIsStarted()
{
    const QString program = m_root.filePath(u"a \"b\" 'c' $HOME `d` \\s \\\\ \n;&é/run"_qs);
    writeFile(program, "#!/bin/sh\ntouch \"$0.started\"\n");
    QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY(AutostartEntry(m_folder, u"x.y.Helper"_qs, program).write());
    QCOMPARE(QProcess::execute(u"gio"_qs, {u"launch"_qs, m_file}), 0);
    QTRY_VERIFY(QFile::exists(program + u".started"_qs));
}

void AutostartEntryTest::switchedOffIsOverwritten()
{
    const AutostartEntry entry(m_folder, u"x.y.Helper"_qs, u"/bin/sh"_qs);
    writeFile(m_file, "[Desktop Entry]\nHidden=true\n");
    QVERIFY(entry.write());
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!file.readAll().contains("Hidden"));
    const QDateTime written = QFileInfo(m_file).fileTime(QFile::FileMetadataChangeTime);
    QVERIFY(entry.write());
    QCOMPARE(QFileInfo(m_file).fileTime(QFile::FileMetadataChangeTime), written);
    QVERIFY(entry.remove());
    QVERIFY(!QFile::exists(m_file));
    QVERIFY(entry.remove());
}

void AutostartEntryTest::refuses_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("program");
    const QString device = m_root.filePath(u"device"_qs);
    QDir().mkpath(m_root.filePath(u"masked"_qs));
    QCOMPARE(::mkfifo(QFile::encodeName(device).constData(), 0600), 0);
    QVERIFY(QFile::link(device, m_root.filePath(u"masked/x.y.Helper.desktop"_qs)));
    QTest::newRow("not writable") << u"/proc/autostart"_qs << u"/bin/sh"_qs;
    QTest::newRow("masked") << m_root.filePath(u"masked"_qs) << u"/bin/sh"_qs;
    QTest::newRow("no program") << m_folder << u"/nonexistent"_qs;
}

void AutostartEntryTest::refuses()
{
    QFETCH(QString, folder);
    QFETCH(QString, program);
    QVERIFY(!AutostartEntry(folder, u"x.y.Helper"_qs, program).write());
}

TARNWICK_TEST(AutostartEntryTest)

#include "autostart_entry_test.moc"
