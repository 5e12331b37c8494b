// SPDX-License-Identifier: MIT
#include "platform/durable_file.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QTest>

using namespace tarnwick;
using namespace tarnwick::test;

class DurableFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheOwnerMayRead();
    void linkStaysALink();

private:
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
};

void DurableFileTest::onlyTheOwnerMayRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"new/deep/file"_qs);
    QVERIFY(replaceFileDurably(path, "one"));
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadOther));
    QVERIFY(replaceFileDurably(path, "two"));
    QCOMPARE(contentOf(path), QByteArray("two"));
    const auto others = QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
    QVERIFY(!(QFile::permissions(path) & others));
    QVERIFY(!(QFile::permissions(folder.filePath(u"new"_qs)) & others));
}

void DurableFileTest::linkStaysALink()
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(u"dotfiles/real"_qs);
    const QString link = folder.filePath(u"link"_qs);
    writeFile(target, "old");
    QVERIFY(QFile::link(u"dotfiles/real"_qs, link));
    QVERIFY(replaceFileDurably(link, "new"));
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(contentOf(target), QByteArray("new"));
}

TARNWICK_TEST(DurableFileTest)

#include "durable_file_test.moc"
