// SPDX-License-Identifier: MIT
#include "shell/updates/update_session.h"
#include "support/loopback_server.h"
#include "support/signed_update.h"
#include "support/test_registry.h"

#include <QDesktopServices>
#include <QTemporaryDir>

using namespace tarnwick::test;
using State = UpdateSession::State;

class UpdatesSessionTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void open(const QUrl& url) { m_opened += url.toLocalFile(); }

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        m_settings = {m_server.url("/feed"), m_update.publicKey(), u"9"_s,
                      m_folder->filePath(u"downloads"_s),
                      [this](const QString& path) { m_shown += path; }};
        m_opened.clear();
        m_shown.clear();
    }

    void onlyPackagesAreOpened_data()
    {
        const auto row = table<QByteArray, QString, bool>("path", "fileName", "isOpened");
        row("package", "Tarnwick%201.3.deb", u"Tarnwick 1.3.deb"_s, true);
        row("archive", "%251%202%20%F0%90%8C%80.TAR.XZ", u"%1 2 \U00010300.TAR.XZ"_s, true);
        row("desktop entry", "a.deb.desktop", u"a.deb.desktop"_s, false);
        row("program", "Tarnwick.AppImage", u"Tarnwick.AppImage"_s, false);
    }

    void onlyPackagesAreOpened()
    {
        QFETCH(QByteArray, path);
        QFETCH(QString, fileName);
        QFETCH(bool, isOpened);
        m_server.answer("/feed", LoopbackServer::bytes(m_update.signedFeed("pkg/" + path)));
        m_server.answer("/pkg/" + path, LoopbackServer::redirect("/elsewhere"));
        m_server.answer("/elsewhere", LoopbackServer::bytes(m_update.content()));
        QDesktopServices::setUrlHandler(u"file"_s, this, "open");

        UpdateSession session(m_settings);
        session.start();
        QTRY_COMPARE(session.state(), State::Offering);
        QVERIFY(saved().isEmpty());
        session.download();
        QTRY_COMPARE(session.state(), State::Saved);
        QDesktopServices::unsetUrlHandler(u"file"_s);

        QCOMPARE(saved(), QStringList(fileName));
        QCOMPARE(session.isOpened(), isOpened);
        QCOMPARE(isOpened ? m_opened : m_shown, QStringList(session.savedPath()));
        QCOMPARE(m_opened.size() + m_shown.size(), 1);
        QFile file(session.savedPath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), m_update.content());
        QVERIFY(!file.permissions().testAnyFlag(QFile::ExeOwner));
    }

    /// Each row changes one thing of a valid update: the feed's path, the key or a text that
    /// is replaced before the feed is signed.
    void failuresAreReportedAndLeaveNoFile_data()
    {
        const auto row = table<QByteArray, QByteArray, QByteArray, QByteArray, QString>(
            "feed", "publicKey", "search", "replacement", "error");
        const QByteArray key = m_update.publicKey();
        row("no feed", "/missing", key, {}, {}, u"refused the request (error 404)"_s);
        row("web page", "/html", key, {}, {}, u"was not signed"_s);
        row("signed web page", "/signed-html", key, {}, {}, u"cannot be read"_s);
        row("unsigned feed", "/unsigned", key, {}, {}, u"was not signed"_s);
        row("changed feed", "/changed", key, {}, {}, u"was not signed"_s);
        row("extended feed", "/extended", key, {}, {}, u"was not signed"_s);
        row("feed too long", "/long", key, {}, {}, u"more than it should"_s);
        row("truncated feed", "/truncated", key, {}, {}, u"broke the connection off"_s);
        row("redirect to http", "/to-http", key, {}, {}, u"not secure: http://192.0.2.1"_s);
        row("redirect loop", "/loop", key, {}, {}, u"without end"_s);
        row("no key", "/feed", {}, {}, {}, u"without the key"_s);
        row("short key", "/feed", key.mid(4), {}, {}, u"without the key"_s);
        const QByteArray length = "length=\"" + QByteArray::number(m_update.content().size());
        row("other key", "/feed", SignedUpdate({}).publicKey(), {}, {}, u"was not signed"_s);
        row("unsigned download", "/feed", key, m_update.signature(), {}, u"is not signed"_s);
        row("no length", "/feed", key, length, "x=\"", u"size"_s);
        row("negative length", "/feed", key, length, "length=\"-1", u"size"_s);
        row("length too large", "/feed", key, length, "length=\"2147483649", u"size"_s);
        row("http URL", "/feed", key, "url=\"", "url=\"http://192.0.2.1/", u"no secure address"_s);
        row("no URL", "/feed", key, "url=", "x=", u"no secure address"_s);
        row("tampered", "/feed", key, "url=\"pkg", "url=\"tampered", u"damaged"_s);
        row("shorter", "/feed", key, "url=\"pkg", "url=\"shorter", u"damaged"_s);
        row("longer", "/feed", key, "url=\"pkg", "url=\"longer", u"more than it should"_s);
        row("truncated", "/feed", key, "url=\"pkg", "url=\"truncated",
            u"broke the connection off"_s);
    }

    void failuresAreReportedAndLeaveNoFile()
    {
        QFETCH(QByteArray, feed);
        QFETCH(QByteArray, publicKey);
        QFETCH(QByteArray, search);
        QFETCH(QByteArray, replacement);
        QFETCH(QString, error);

        const QByteArray& content = m_update.content();
        const QByteArray name = "/Tarnwick%201.3.deb";
        const QByteArray page = "<html><p>Sign in</p></html>";
        m_server.answer("/html", LoopbackServer::bytes(page));
        m_server.answer("/signed-html", LoopbackServer::bytes(m_update.signedText(page)));
        QByteArray changed = m_update.unsignedFeed("pkg" + name);
        m_server.answer("/unsigned", LoopbackServer::bytes(changed));
        const QByteArray valid = m_update.signedFeed("pkg" + name);
        m_server.answer("/changed", LoopbackServer::bytes(QByteArray(valid).replace("1.3", "1.4")));
        m_server.answer("/extended", LoopbackServer::bytes(valid + "<!-- more -->"));
        m_server.answer("/long", LoopbackServer::bytes(QByteArray(1024 * 1024 + 1, ' ')));
        m_server.answer("/truncated", LoopbackServer::truncated("<rss>"));
        m_server.answer("/to-http", LoopbackServer::redirect("http://192.0.2.1/feed"));
        m_server.answer("/loop", LoopbackServer::redirect("/loop"));
        m_server.answer("/pkg" + name, LoopbackServer::bytes(content));
        m_server.answer("/tampered" + name, LoopbackServer::bytes('y' + content.mid(1)));
        m_server.answer("/shorter" + name, LoopbackServer::bytes(content.chopped(1)));
        m_server.answer("/longer" + name, LoopbackServer::bytes(content + '!'));
        m_server.answer("/truncated" + name, LoopbackServer::truncated(content.left(100)));
        if (!search.isEmpty())
            changed.replace(search, replacement);
        m_server.answer("/feed", LoopbackServer::bytes(m_update.signedText(changed)));

        m_settings.feed = m_server.url(feed);
        m_settings.publicKey = publicKey;
        UpdateSession session(m_settings);
        session.start();
        QTRY_VERIFY(session.state() != State::Checking);
        session.download();
        QTRY_COMPARE(session.state(), State::Failed);
        QVERIFY2(session.error().contains(error), qPrintable(session.error()));
        QCOMPARE(saved(), QStringList());
    }

private:
    [[nodiscard]] QStringList saved() const
    {
        return QDir(m_settings.downloadFolder)
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    const SignedUpdate m_update{QByteArray(300'000, 'x') + "end"};
    LoopbackServer m_server;
    std::optional<QTemporaryDir> m_folder;
    UpdateSettings m_settings;
    QStringList m_opened;
    QStringList m_shown;
};

TARNWICK_TEST(UpdatesSessionTest)

#include "updates_session_test.moc"
