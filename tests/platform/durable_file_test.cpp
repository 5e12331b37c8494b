// SPDX-License-Identifier: MIT
#include "platform/durable_file.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

using namespace tarnwick::test;

class DurableFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replacesLinkTargetWithOwnerOnlyFile()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"new/deep/file"_s));
        const QString link = folder.filePath(u"link"_s);
        QVERIFY(!replaceFileDurably(file.fileName(), "one"));
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ReadOther));
        QVERIFY(QFile::link(u"new/deep/file"_s, link));
        QVERIFY(!replaceFileDurably(link, "two"));
        QVERIFY(QFileInfo(link).isSymLink());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("two"));
        const auto others =
            QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
        QVERIFY(!(file.permissions() & others));
        QVERIFY(!(QFile::permissions(folder.filePath(u"new"_s)) & others));
    }
};

TARNWICK_TEST(DurableFileTest)

#include "durable_file_test.moc"
