// SPDX-License-Identifier: MIT
#include "e2e/desktop.h"
#include "e2e/outside_world.h"
#include "support/loopback_server.h"
#include "support/signed_update.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QJsonDocument>
#include <QTest>

using namespace tarnwick::test;

/// The installed program, with another feed URL and key, and a real server.
class UpdatesE2eTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { key(u"Escape"_s); }

    void downloadIsVerifiedAndOpened_data()
    {
        const auto row = table<QByteArray, QString, bool>("served", "conclusion", "isKept");
        row("genuine", "the new version", u"Tarnwick 1.3 has been downloaded"_s, true);
        row("tampered", "the bad version", u"The new version could not be downloaded"_s, false);
    }

    void downloadIsVerifiedAndOpened()
    {
        QFETCH(QByteArray, served);
        QFETCH(QString, conclusion);
        QFETCH(bool, isKept);
        const OutsideWorld world;
        const SignedUpdate update("the new version");
        LoopbackServer server;
        const QByteArray package = server.url("/files/tarnwick-10.txt").toEncoded();
        server.answer("/feed", LoopbackServer::bytes(update.feed(package)));
        server.answer("/files/tarnwick-10.txt", LoopbackServer::bytes(served));

        QProcess::execute(u"cp"_s,
                          {u"-a"_s, QStringLiteral(TARNWICK_INSTALLED), world.path(u"app"_s)});
        writeFile(world.path(u"app/share/tarnwick/Info.json"_s),
                  QJsonDocument(
                      QJsonObject{{u"CFBundleIdentifier"_s, u"org.tarnwick.Tarnwick"_s},
                                  {u"CFBundleVersion"_s, u"9"_s},
                                  {u"SUFeedURL"_s, server.url("/feed").toString()},
                                  {u"SUPublicEDKey"_s, QString::fromLatin1(update.publicKey())}})
                      .toJson());
        const RunningProgram program({}, world.variables(), world.path(u"app/bin/tarnwick"_s));
        QVERIFY(openMenu());
        QVERIFY(clickNamed(u"Check for updates"_s));
        QVERIFY(windowIsActive(u"Software Update"_s));
        QVERIFY(clickNamed(u"Download"_s));
        QVERIFY(!appeared(conclusion).name.isEmpty());

        const QString file = world.path(u"home/Downloads/tarnwick-10.txt"_s);
        const auto files =
            QDir(world.path(u"home/Downloads"_s)).entryList(QDir::Files | QDir::Hidden);
        QCOMPARE(files, isKept ? QStringList{u"tarnwick-10.txt"_s} : QStringList());
        QTRY_COMPARE_WITH_TIMEOUT(
            world.started(),
            isKept ? QStringList{u"<app><--open><%1><--name><Recorder><end>"_s.arg(file)}
                   : QStringList(),
            10000);
        QVERIFY(clickNamed(u"Close"_s));
    }
};

TARNWICK_TEST(UpdatesE2eTest)

#include "updates_e2e_test.moc"
