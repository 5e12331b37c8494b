// SPDX-License-Identifier: MIT
#include "shell/updates/appcast.h"
#include "shell/updates/safe_file_name.h"
#include "shell/updates/trusted_address.h"
#include "shell/updates/version_comparison.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QTest>

using namespace tarnwick;
using namespace tarnwick::test;

class UpdatesAppcastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void versions_data();
    void versions();
    void feeds_data();
    void feeds();
    void everyFieldIsRead();
    void addresses_data();
    void addresses();
    void fileNames_data();
    void fileNames();
    void namesInUseAreNumbered();
};

void UpdatesAppcastTest::versions_data()
{
    QTest::addColumn<QString>("older");
    QTest::addColumn<QString>("newer");
    QTest::addColumn<bool>("areEqual");

    const auto row = [](const char* older, const char* newer, bool areEqual = false) {
        QTest::addRow("%s and %s", older, newer)
            << QString::fromLatin1(older) << QString::fromLatin1(newer) << areEqual;
    };
    row("1.9", "1.10");
    row("1.9.9", "2");
    row("1.0b2", "1.0");
    row("1.0b2", "1.0b10");
    row("1.0-beta3", "1.0-rc1");
    row("1.0b2", "1.0.1");
    row("1.0", "1.0.0.1");
    row("99999999999999999998", "99999999999999999999");
    row("", "0.1");
    row("1", "1.0.0", true);
    row("1.02", "1.2", true);
    row("1.0B2", "1-0_b2", true);
}

void UpdatesAppcastTest::versions()
{
    QFETCH(QString, older);
    QFETCH(QString, newer);
    QFETCH(bool, areEqual);
    QCOMPARE(compareVersions(older, newer) < 0, !areEqual);
    QCOMPARE(compareVersions(newer, older) > 0, !areEqual);
}

void UpdatesAppcastTest::feeds_data()
{
    QTest::addColumn<QByteArray>("feed");
    QTest::addColumn<QString>("newest");

    const QByteArray start =
        R"(<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel>)";
    const QByteArray end = "</channel></rss>";
    const QByteArray nine = "<item><sparkle:version>9</sparkle:version></item>";
    const auto items = [&](const QByteArray& more) { return start + more + nine + end; };

    QTest::newRow("highest") << items("<item><sparkle:version>10</sparkle:version></item>")
                             << u"10"_qs;
    QTest::newRow("attribute") << items(R"(<item><enclosure sparkle:version="10"/></item>)")
                               << u"10"_qs;
    QTest::newRow("another channel")
        << items("<item><sparkle:version>10</sparkle:version><sparkle:channel>beta"
                 "</sparkle:channel></item>")
        << u"9"_qs;
    QTest::newRow("another system")
        << items("<item><sparkle:version>10</sparkle:version><sparkle:os>macos</sparkle:os></item>")
        << u"9"_qs;
    QTest::newRow("only enclosures of others")
        << items(R"(<item><enclosure sparkle:version="10" sparkle:os="windows"/></item>)")
        << u"9"_qs;
    QTest::newRow("second enclosure")
        << items(R"(<item><enclosure sparkle:version="11" sparkle:os="windows"/>
                    <enclosure sparkle:version="10" sparkle:os="Linux"/></item>)")
        << u"10"_qs;
    QTest::newRow("deltas")
        << items(
               R"(<item><sparkle:deltas><enclosure sparkle:version="10"/></sparkle:deltas></item>)")
        << u"9"_qs;
    QTest::newRow("foreign elements")
        << items("<item><version>10</version><x:version xmlns:x='urn:x'>11</x:version></item>")
        << u"9"_qs;
    QTest::newRow("nothing newer")
        << start + "<item><sparkle:version>8.0</sparkle:version></item>" + end << u"none"_qs;
    QTest::newRow("no item") << start + end << u"no feed"_qs;
    QTest::newRow("truncated") << (start + nine + "<item>") << u"no feed"_qs;
    QTest::newRow("something after it") << items({}) + "<rss/>" << u"no feed"_qs;
    QTest::newRow("web page") << QByteArray("<!DOCTYPE html><html><body>Sign in</body></html>")
                              << u"no feed"_qs;
    QTest::newRow("very deep") << start + "<item>" + QByteArray("<description>").repeated(300'000)
                               << u"no feed"_qs;
    QTest::newRow("empty") << QByteArray() << u"no feed"_qs;
    QTest::newRow("harmless document type") << "<!DOCTYPE rss>" + items({}) << u"9"_qs;
    QTest::newRow("entities")
        << R"(<!DOCTYPE rss [<!ENTITY a "aaaaaaaa"><!ENTITY b "&a;&a;&a;&a;&a;&a;&a;&a;">]>)" +
               items("<title>&b;</title>")
        << u"no feed"_qs;
    QTest::newRow("parameter entities")
        << R"(<!DOCTYPE rss [<!ENTITY % a SYSTEM "file:///etc/hostname"> %a;]>)" + items({})
        << u"no feed"_qs;
}

void UpdatesAppcastTest::feeds()
{
    QFETCH(QByteArray, feed);
    QString found = u"no feed"_qs;
    if (const auto items = parseAppcast(feed, u"linux"_qs)) {
        const auto newest = newestItem(*items, u"8"_qs);
        found = newest ? newest->version : u"none"_qs;
    }
    QTEST(found, "newest");
}

void UpdatesAppcastTest::everyFieldIsRead()
{
    const auto items = parseAppcast(R"(<?xml version="1.0"?>
        <rss xmlns:s="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel><item>
          <s:releaseNotesLink> https://example.org/notes </s:releaseNotesLink>
          <description s:format="plain-text">a &lt; b</description>
          <enclosure url="https://example.org/a.deb" length="12" s:version="3"
                     s:shortVersionString="1.2" s:edSignature="c2ln" type="x/y"/>
        </item></channel></rss>)",
                                    u"linux"_qs);
    QVERIFY(items && items->size() == 1);
    const AppcastItem& item = items->first();
    QCOMPARE(item.name(), u"1.2"_qs);
    QCOMPARE(item.notes, u"a < b"_qs);
    QVERIFY(item.notesArePlainText);
    QCOMPARE(item.notesLink, QUrl(u"https://example.org/notes"_qs));
    QCOMPARE(item.url, QUrl(u"https://example.org/a.deb"_qs));
    QCOMPARE(item.length, 12);
    QCOMPARE(item.signature, "c2ln");
}

void UpdatesAppcastTest::addresses_data()
{
    QTest::addColumn<bool>("isTrusted");

    for (const char* const url :
         {"https://example.org/a", "http://127.9.8.7:80/a", "http://[::1]/a", "http://LOCALHOST/a"})
        QTest::newRow(url) << true;
    for (const char* const url :
         {"", "http://example.org/a", "http://localhost.example.org/", "http://127.0.0.1.nip.io/",
          "http://localhost@example.org/", "http://0.0.0.0/", "ftp://localhost/a",
          "file:///etc/passwd", "https:///a", "//localhost/a"})
        QTest::newRow(url) << false;
}

void UpdatesAppcastTest::addresses()
{
    QTEST(isTrustedAddress(QUrl(QString::fromLatin1(QTest::currentDataTag()))), "isTrusted");
}

void UpdatesAppcastTest::fileNames_data()
{
    QTest::addColumn<QString>("fileName");

    QTest::newRow("a/b/Tarnwick%201.3.deb?x=/y#/z") << u"Tarnwick 1.3.deb"_qs;
    QTest::newRow("a/..%2F..%2F.bashrc") << u"bashrc"_qs;
    QTest::newRow("..%5C..%5Cautorun.inf") << u"autorun.inf"_qs;
    QTest::newRow("%2e%2e") << u"Tarnwick update"_qs;
    QTest::newRow("a/") << u"Tarnwick update"_qs;
    QTest::newRow("a%0A%00b%7F%E2%80%AEc.deb ") << u"abc.deb"_qs;
}

void UpdatesAppcastTest::fileNames()
{
    const auto path = QString::fromLatin1(QTest::currentDataTag());
    QTEST(safeFileName(QUrl(u"https://example.org/"_qs + path)), "fileName");
}

void UpdatesAppcastTest::namesInUseAreNumbered()
{
    const QTemporaryDir folder;
    const QString longName =
        safeFileName(QUrl(u"https://example.org/"_qs + QString(300, u'\u00e4') + u".tar.gz"_qs));
    QVERIFY(longName.endsWith(u"\u00e4.tar.gz"_qs));
    writeFile(folder.filePath(longName), "1");
    const QString second = unusedPath(folder.path(), longName);
    QVERIFY(second.endsWith(u" (2).tar.gz"_qs));
    QVERIFY(QFile::link(u"/nonexistent"_qs, second));
    QVERIFY(unusedPath(folder.path(), longName).endsWith(u" (3).tar.gz"_qs));
}

TARNWICK_TEST(UpdatesAppcastTest)

#include "updates_appcast_test.moc"
