// SPDX-License-Identifier: MIT
#include "shell/updates/appcast.h"
#include "shell/updates/partial_file.h"
#include "shell/updates/url_policy.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

using namespace tarnwick::test;

class UpdatesAppcastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void versions_data()
    {
        const auto row = table<QString, QString, bool>("older", "newer", "areEqual");
        row("numeric", u"1.9"_s, u"1.10"_s, false);
        row("shorter", u"1.9.9"_s, u"2"_s, false);
        row("beta", u"1.0b2"_s, u"1.0"_s, false);
        row("beta number", u"1.0b2"_s, u"1.0b10"_s, false);
        row("letters", u"1.0-beta3"_s, u"1.0-rc1"_s, false);
        row("beta of previous version", u"1.0b2"_s, u"1.0.1"_s, false);
        row("longer", u"1.0"_s, u"1.0.0.1"_s, false);
        row("beyond 64 bits", u"99999999999999999998"_s, u"99999999999999999999"_s, false);
        row("empty", {}, u"0.1"_s, false);
        row("zeros", u"1"_s, u"1.0.0"_s, true);
        row("leading zero", u"1.02"_s, u"1.2"_s, true);
        row("separators", u"1.0B2"_s, u"1-0_b2"_s, true);
    }

    void versions()
    {
        QFETCH(QString, older);
        QFETCH(QString, newer);
        QFETCH(bool, areEqual);
        QCOMPARE(compareVersions(older, newer) < 0, !areEqual);
        QCOMPARE(compareVersions(newer, older) > 0, !areEqual);
    }

    void feeds_data()
    {
        const auto row = table<QByteArray, QByteArray>("feed", "newest");
        const QByteArray start =
            R"(<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel>)";
        const QByteArray end = "</channel></rss>";
        const QByteArray ten = "<sparkle:version>10</sparkle:version>";
        // A feed with one item of that content and one of version 9.
        const auto item = [&](const QByteArray& content) {
            return start + "<item>" + content +
                   "</item><item><sparkle:version>9</sparkle:version></item>" + end;
        };

        row("highest", item(ten), "10");
        row("attribute", item("<enclosure sparkle:version='10'/>"), "10");
        row("other channel", item(ten + "<sparkle:channel>beta</sparkle:channel>"), "9");
        row("other system", item(ten + "<sparkle:os>macos</sparkle:os>"), "9");
        row("enclosure for other system", item(ten + "<enclosure sparkle:os='windows'/>"), "9");
        row("second enclosure",
            item("<enclosure sparkle:os='windows'/><enclosure sparkle:version='10' "
                 "sparkle:os='Linux'/>"),
            "10");
        row("deltas", item("<sparkle:deltas><enclosure sparkle:version='10'/></sparkle:deltas>"),
            "9");
        row("other namespaces",
            item("<version>10</version><x:version xmlns:x='urn:x'>10</x:version>"), "9");
        row("nothing newer", start + "<item><sparkle:version>8.0</sparkle:version></item>" + end,
            "none");
        row("no item", start + end, "no feed");
        row("truncated", start + "<item>" + ten + "</item><item>", "no feed");
        row("second root", item(ten) + "<rss/>", "no feed");
        row("web page", "<!DOCTYPE html><html><body>Sign in</body></html>", "no feed");
        row("document type", "<!DOCTYPE rss>" + item(ten), "10");
        row("entities", "<!DOCTYPE rss [<!ENTITY a 'a'><!ENTITY b '&a;&a;'>]>" + item(ten),
            "no feed");
    }

    void feeds()
    {
        QFETCH(QByteArray, feed);
        QByteArray found = "no feed";
        if (const auto items = parseAppcast(feed, u"linux"_s)) {
            const auto newest = newestItem(*items, u"8"_s);
            found = newest ? newest->version.toLatin1() : "none";
        }
        QTEST(found, "newest");
    }

    void everyFieldIsRead()
    {
        const auto items = parseAppcast(R"(<?xml version="1.0"?>
            <rss xmlns:s="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel><item>
              <s:releaseNotesLink> https://example.org/notes </s:releaseNotesLink>
              <description s:format="plain-text">a &lt; b</description>
              <enclosure url="https://example.org/a.deb" length="12" s:version="3"
                         s:shortVersionString="&#x202e;1.2&#x2028;&#x1F600;" s:edSignature="c2ln" type="x/y"/>
            </item></channel></rss>)",
                                        u"linux"_s);
        QVERIFY(items && items->size() == 1);
        const AppcastItem& item = items->first();
        QCOMPARE(item.name(), u"1.2\U0001F600"_s);
        QCOMPARE(item.notes, u"a < b"_s);
        QVERIFY(item.notesArePlainText);
        QCOMPARE(item.notesLink, QUrl(u"https://example.org/notes"_s));
        QCOMPARE(item.url, QUrl(u"https://example.org/a.deb"_s));
        QCOMPARE(item.length, 12);
        QCOMPARE(item.signature, "c2ln");
    }

    void trustedUrls()
    {
        for (const auto* url : {"https://example.org/a", "http://127.9.8.7:80/a", "http://[::1]/a",
                                "http://LOCALHOST/a"})
            QVERIFY2(isTrustedUrl(QUrl::fromEncoded(url)), url);
        for (const auto* url :
             {"", "http://example.org/a", "http://localhost.example.org/", "ftp://localhost/a",
              "http://127.0.0.1.nip.io/", "http://localhost@example.org/", "http://0.0.0.0/",
              "file:///etc/passwd", "https:///a", "//localhost/a"})
            QVERIFY2(!isTrustedUrl(QUrl::fromEncoded(url)), url);
    }

    void onlyThisComputerLeadsToThisComputer()
    {
        const QUrl remote(u"https://example.org/a"_s);
        const QUrl local(u"http://localhost/a"_s);
        QVERIFY(isTrustedTarget(remote, QUrl(u"https://example.com/"_s)));
        QVERIFY(!isTrustedTarget(remote, QUrl(u"http://example.com/"_s)));
        QVERIFY(isTrustedTarget(local, remote));
        for (const auto* url : {"http://localhost/", "https://a.localhost./", "https://127.1/",
                                "https://2130706433/", "https://[::1]/", "https://0.0.0.0/",
                                "https://[::ffff:127.0.0.1]/", "https://[::]/"}) {
            QVERIFY2(!isTrustedTarget(remote, QUrl::fromEncoded(url)), url);
            QVERIFY2(isTrustedTarget(local, QUrl::fromEncoded(url)), url);
        }
    }

    void fileNames()
    {
        const auto nameOf = [](const QString& path) {
            return safeFileName(QUrl(u"https://example.org/"_s + path));
        };
        QCOMPARE(nameOf(u"a/b/Tarnwick%201.3.deb?x=/y#/z"_s), u"Tarnwick 1.3.deb"_s);
        QCOMPARE(nameOf(u"a/..%2F..%2F.bashrc"_s), u"bashrc"_s);
        QCOMPARE(nameOf(u"..%5C..%5Cautorun.inf"_s), u"autorun.inf"_s);
        QCOMPARE(nameOf(u"%2e%2e"_s), u"Tarnwick update"_s);
        QCOMPARE(nameOf(u"a/"_s), u"Tarnwick update"_s);
        QCOMPARE(nameOf(u"a%0A%00b%7F%E2%80%AEc.deb"_s), u"abc.deb"_s);

        const QTemporaryDir folder;
        const QString name = nameOf(QString(300, u'\u00e4') + u".tar.gz"_s);
        QVERIFY(name.endsWith(u"\u00e4.tar.gz"_s));
        QCOMPARE(nameOf(u"\U00010300"_s.repeated(100)), u"\U00010300"_s.repeated(50));
        QCOMPARE(nameOf(u"a"_s + u"\U00010300"_s.repeated(100)),
                 u'a' + u"\U00010300"_s.repeated(49));
        writeFile(folder.filePath(u"%3%1.tar.gz"_s), "in use");
        const auto path = [&] { return unusedPath(folder.path(), u"%3%1.tar.gz"_s); };
        QVERIFY(QFile::link(u"/nonexistent"_s, path()));
        QCOMPARE(path(), folder.filePath(u"%3%1 (3).tar.gz"_s));
    }
};

TARNWICK_TEST(UpdatesAppcastTest)

#include "updates_appcast_test.moc"
