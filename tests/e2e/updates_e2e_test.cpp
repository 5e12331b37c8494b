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

    void downloadIsVerifiedAndShown_data()
    {
        const auto row = table<QString, QByteArray, QString, bool, bool>(
            "fileName", "served", "conclusion", "isOpened", "isRevealed");
        const QString success = u"Tarnwick 1.3 has been downloaded"_s;
        row("package", u"tarnwick %1.deb"_s, "the new version", success, true, false);
        row("desktop entry", u"tarnwick.desktop"_s, "the new version", success, false, true);
        row("tampered", u"tarnwick %1.deb"_s, "the bad version",
            u"The new version could not be downloaded"_s, false, false);
    }

    void downloadIsVerifiedAndShown()
    {
        QFETCH(QString, fileName);
        QFETCH(QByteArray, served);
        QFETCH(QString, conclusion);
        QFETCH(bool, isOpened);
        QFETCH(bool, isRevealed);
        const OutsideWorld world;
        const SignedUpdate update("the new version");
        LoopbackServer server;
        const QByteArray path = "/files/" + QUrl::toPercentEncoding(fileName);
        server.answer("/feed", LoopbackServer::bytes(update.signedFeed(path)));
        server.answer(path, LoopbackServer::bytes(served));

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

        const QString file = world.path(u"home/Downloads/"_s + fileName);
        const QString started = u"<app><--open><"_s + file + u"><--name><Recorder><end>"_s;
        const auto saved =
            QDir(world.path(u"home/Downloads"_s)).entryList(QDir::Files | QDir::Hidden);
        QCOMPARE(saved.join(u'/'), isOpened || isRevealed ? fileName : QString());
        QTRY_COMPARE_WITH_TIMEOUT(world.started().join(u'/'), isOpened ? started : QString(),
                                  10000);
        QTRY_COMPARE(world.revealed().join(u'/'), isRevealed ? file : QString());
        QVERIFY(clickNamed(u"Close"_s));
    }
};

TARNWICK_TEST(UpdatesE2eTest)

#include "updates_e2e_test.moc"
