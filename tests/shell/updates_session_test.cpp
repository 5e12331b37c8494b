// SPDX-License-Identifier: MIT
#include "shell/updates/update_session.h"
#include "support/loopback_server.h"
#include "support/signed_update.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QDesktopServices>
#include <QTest>

using namespace tarnwick;
using namespace tarnwick::test;
using State = UpdateSession::State;

class UpdatesSessionTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void open(const QUrl& url) { m_opened += url.toLocalFile(); }

private Q_SLOTS:
    void init();
    void aGoodUpdateIsSavedAndOpened();
    void feedsThatLeadNowhere_data();
    void feedsThatLeadNowhere();
    void offersThatAreRefused_data();
    void offersThatAreRefused();
    void badDownloadsLeaveNothing_data();
    void badDownloadsLeaveNothing();

private:
    [[nodiscard]] UpdateSettings settings() const
    {
        return {m_server->url("/feed"), m_update.publicKey(), u"9"_qs,
                m_folder->filePath(u"downloads"_qs)};
    }
    [[nodiscard]] QStringList saved() const
    {
        return QDir(m_folder->filePath(u"downloads"_qs))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    const SignedUpdate m_update{QByteArray(300'000, 'x') + "end"};
    std::unique_ptr<LoopbackServer> m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_opened;
};

void UpdatesSessionTest::init()
{
    m_server = std::make_unique<LoopbackServer>();
    m_folder = std::make_unique<QTemporaryDir>();
    m_opened.clear();
    m_server->answer("/feed", LoopbackServer::bytes(m_update.feed("pkg/Tarnwick%201.3.deb")));
}

void UpdatesSessionTest::aGoodUpdateIsSavedAndOpened()
{
    m_server->answer("/pkg/Tarnwick%201.3.deb", LoopbackServer::redirect("/elsewhere"));
    m_server->answer("/elsewhere", LoopbackServer::bytes(m_update.content()));
    QDesktopServices::setUrlHandler(u"file"_qs, this, "open");

    UpdateSession session(settings());
    session.start();
    QTRY_COMPARE(session.state(), State::Offering);
    QVERIFY(saved().isEmpty());
    session.download();
    QTRY_COMPARE(session.state(), State::Saved);
    QDesktopServices::unsetUrlHandler(u"file"_qs);

    QCOMPARE(saved(), QStringList(u"Tarnwick 1.3.deb"_qs));
    QCOMPARE(m_opened, QStringList(session.savedPath()));
    QFile file(session.savedPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), m_update.content());
    QVERIFY(!file.permissions().testAnyFlag(QFile::ExeOwner));
}

void UpdatesSessionTest::feedsThatLeadNowhere_data()
{
    QTest::addColumn<QByteArray>("feed");
    QTest::addColumn<QString>("error");

    QTest::newRow("missing") << QByteArray("/none") << u"refused the request (error 404)"_qs;
    QTest::newRow("web page") << QByteArray("/html") << u"cannot be read"_qs;
    QTest::newRow("too long") << QByteArray("/long") << u"more than it should"_qs;
    QTest::newRow("broken off") << QByteArray("/broken") << u"broke the connection off"_qs;
    QTest::newRow("insecure redirect") << QByteArray("/away") << u"not secure: http://192.0.2.1"_qs;
    QTest::newRow("round and round") << QByteArray("/loop") << u"without end"_qs;
}

void UpdatesSessionTest::feedsThatLeadNowhere()
{
    m_server->answer("/html", LoopbackServer::bytes("<html><p>Sign in</p></html>", "200 OK",
                                                    "Content-Type: text/html"));
    m_server->answer("/long", LoopbackServer::bytes(QByteArray(4 * 1024 * 1024 + 1, ' ')));
    m_server->answer("/broken", LoopbackServer::brokenOff("<rss>"));
    m_server->answer("/away", LoopbackServer::redirect("http://192.0.2.1/feed"));
    m_server->answer("/loop", LoopbackServer::redirect("/loop"));

    QFETCH(QByteArray, feed);
    QFETCH(QString, error);
    UpdateSettings settings = this->settings();
    settings.feed = m_server->url(feed);
    UpdateSession session(settings);
    session.start();
    QTRY_COMPARE(session.state(), State::Failed);
    QVERIFY2(session.error().contains(error), qPrintable(session.error()));
}

void UpdatesSessionTest::offersThatAreRefused_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QByteArray>("instead");
    QTest::addColumn<QByteArray>("publicKey");
    QTest::addColumn<QString>("error");

    const QByteArray key = m_update.publicKey();
    const QByteArray length = "length=\"" + QByteArray::number(m_update.content().size());
    QTest::newRow("no key") << length << length << QByteArray() << u"without the key"_qs;
    QTest::newRow("short key") << length << length << key.mid(4) << u"without the key"_qs;
    QTest::newRow("no signature") << m_update.signature() << QByteArray() << key
                                  << u"not signed"_qs;
    QTest::newRow("no length") << length << QByteArray("x=\"") << key << u"size"_qs;
    QTest::newRow("negative") << length << QByteArray("length=\"-1") << key << u"size"_qs;
    QTest::newRow("absurd") << length << QByteArray("length=\"2147483649") << key << u"size"_qs;
    QTest::newRow("insecure") << QByteArray("url=\"") << QByteArray("url=\"http://192.0.2.1/")
                              << key << u"no secure address"_qs;
    QTest::newRow("no address") << QByteArray("url=") << QByteArray("x=") << key
                                << u"no secure address"_qs;
}

void UpdatesSessionTest::offersThatAreRefused()
{
    QFETCH(QByteArray, written);
    QFETCH(QByteArray, instead);
    QFETCH(QByteArray, publicKey);
    QFETCH(QString, error);
    m_server->answer("/feed",
                     LoopbackServer::bytes(m_update.feed("pkg").replace(written, instead)));
    UpdateSettings settings = this->settings();
    settings.publicKey = publicKey;
    UpdateSession session(settings);
    session.start();
    QTRY_COMPARE(session.state(), State::Failed);
    QVERIFY2(session.error().contains(error), qPrintable(session.error()));
    QVERIFY(session.offer());
}

void UpdatesSessionTest::badDownloadsLeaveNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isBrokenOff");
    QTest::addColumn<bool>("isFolderBlocked");
    QTest::addColumn<QString>("error");

    const QByteArray good = m_update.content();
    QByteArray tampered = good;
    tampered[tampered.size() / 2] = 'y';
    QTest::newRow("tampered") << tampered << false << false << u"damaged"_qs;
    QTest::newRow("shorter") << good.chopped(1) << false << false << u"damaged"_qs;
    QTest::newRow("longer") << good + '!' << false << false << u"more than it should"_qs;
    QTest::newRow("broken off") << good.left(100) << true << false << u"broke the connection"_qs;
    QTest::newRow("unwritable folder") << good << false << true << u"cannot be saved in"_qs;
}

void UpdatesSessionTest::badDownloadsLeaveNothing()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isBrokenOff);
    QFETCH(bool, isFolderBlocked);
    QFETCH(QString, error);
    m_server->answer("/pkg/Tarnwick%201.3.deb", isBrokenOff ? LoopbackServer::brokenOff(content)
                                                            : LoopbackServer::bytes(content));
    if (isFolderBlocked)
        writeFile(m_folder->filePath(u"downloads"_qs), "a file");

    UpdateSession session(settings());
    session.start();
    QTRY_COMPARE(session.state(), State::Offering);
    session.download();
    QTRY_COMPARE(session.state(), State::Failed);
    QVERIFY2(session.error().contains(error), qPrintable(session.error()));
    QCOMPARE(saved(), QStringList());
}

TARNWICK_TEST(UpdatesSessionTest)

#include "updates_session_test.moc"
