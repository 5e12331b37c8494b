// SPDX-License-Identifier: MIT
#include "model/remote_address.h"
#include "support/stops_process.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"
#include "support/workbench.h"

using namespace tarnwick::test;

/// What a record knows beyond its status, and what it starts.
class RepositoryActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void remoteBecomesWebAddress_data()
    {
        const auto row = table<QString, QString>("remote", "address");
        row("scp form", u"git@github.com:owner/repo.git\n"_s, u"https://github.com/owner/repo"_s);
        row("https", u"https://github.com/owner/repo.git\n"_s, u"https://github.com/owner/repo"_s);
        row("host that does not end in com", u"git@gitlab.gnome.org:owner/repo.git"_s,
            u"https://gitlab.gnome.org:owner/repo"_s);
        row("ssh with a port", u"ssh://git@gitlab.com:22/o/r.git"_s,
            u"ssh://https://gitlab.com/22/o/r"_s);
        row("only in the name", u"git@example.com:me/github-notes.git"_s,
            u"https://example.com/me/github-notes"_s);
        row(".git within the name", u"https://github.com/o/a.github.io.git"_s,
            u"https://github.com/o/ahub.io"_s);
        row("another host", u"git@example.com:owner/repo.git"_s, {});
        row("capitals", u"https://GitHub.com/owner/repo"_s, {});
        row("no remote", {}, {});
        row("output that is no text", u"1?"_s, {});
    }

    void remoteBecomesWebAddress()
    {
        QFETCH(QString, remote);
        QFETCH(QString, address);
        QCOMPARE(remoteWebAddress(remote).value_or(QString()), address);
    }

    void parsesLinks_data()
    {
        const auto row = table<QString, QList<RepoLink>>("stored", "links");
        row("empty lines", u"\nhttp://a @@ Docs\n\n"_s, {{u"http://a"_s, u"Docs"_s}});
        row("second separator", u"a @@ b @@ c"_s, {{u"a"_s, u"b"_s}});
        row("spaces belong", u" a  @@  b \r\nc @@ "_s, {{u" a "_s, u" b \r"_s}, {u"c"_s, {}}});
        row("empty text", {}, {});
    }

    void parsesLinks()
    {
        QFETCH(QString, stored);
        const auto here = m_bench.record(u"/nonexistent/a/app"_s);
        const auto there = m_bench.record(u"/nonexistent/b/app"_s);
        m_bench.store.setObject(stored, u"app-urls"_s);
        QTEST(here->links(), "links");
        QTEST(there->links(), "links");
        for (const auto* malformed : {"http://a@@Docs", "a @@ b\n ", "http://a"}) {
            m_bench.store.setObject(QString::fromLatin1(malformed), u"app-urls"_s);
            QVERIFY2(stopsProcess([&] { static_cast<void>(here->links()); }), malformed);
        }
    }

    void opensTerminals()
    {
        const auto record = m_bench.record(u"/tmp/x"_s);
        record->push();
        record->pull();
        record->stash();
        record->startTerminal();
        QStringList commands;
        for (const TerminalRequest& request : m_bench.terminal.requests) {
            QCOMPARE(request.dir, u"/tmp/x"_s);
            const QString command = request.command.join(u' ');
            const QString line = command.isEmpty() ? command : u" && "_s + command;
            QCOMPARE(request.appleScript, u"tell application \"Terminal\"\n    activate\n"
                                          "    do script \"cd '/tmp/x'%1\"\nend tell"_s.arg(line));
            commands += command;
        }
        QCOMPARE(commands, (QStringList{u"git push"_s, u"git pull"_s, u"git stash"_s, {}}));
    }

    void fetchesAllInOneTerminal()
    {
        const TemporaryRepository local(u"no remote"_s);
        const TemporaryRepository good(u"it's \"good\" \\"_s);
        good.run({u"git clone -q --bare . ../up.git; git remote add other ../up.git"_s});
        const TemporaryRepository gone(u"gone"_s);
        gone.run({u"git remote add origin /nonexistent"_s});
        fetchAll({m_bench.record(local.dir()), m_bench.record(gone.dir()),
                  m_bench.record(u"/nonexistent"_s), m_bench.record(good.dir())},
                 m_bench.terminal);
        const TerminalRequest request = m_bench.terminal.requests.takeLast();
        QProcess terminal;
        terminal.setProcessChannelMode(QProcess::MergedChannels);
        terminal.start(request.command.first(), request.command.mid(1));
        QVERIFY(terminal.waitForFinished());
        const QString shown = QString::fromUtf8(terminal.readAll());
        QVERIFY2(shown.endsWith(u"\nCould not fetch:\n  %1\n"_s.arg(gone.dir())),
                 qPrintable(shown));
        good.run({u"git rev-parse -q --verify other/main"_s});
        QVERIFY(!shown.contains(local.dir()) && shown.contains(good.dir()));
        // A shell that is typed into gets the same words.
        const QString typed = request.appleScript.section(u'\n', 2, 2).trimmed().mid(11).chopped(1);
        terminal.start(
            u"/bin/sh"_s,
            {u"-c"_s, QString(typed).replace(u"\\\\"_s, u"\\"_s).replace(u"\\\""_s, u"\""_s)});
        QVERIFY(terminal.waitForFinished());
        QVERIFY(QString::fromUtf8(terminal.readAll()).endsWith(shown.section(u'\n', -3)));
    }

    void relativePathsAreHandedOutAbsolute()
    {
        const QTemporaryDir folder;
        const QString script = folder.filePath(u"open"_s);
        writeFile(script, "#!/bin/sh\necho \"$*\" >> \"$0.log\"\n");
        QVERIFY(QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner));
        const CommandRunner runner{{.open = script}};
        const auto record = RepoViewModel::create(
            u"some/repo"_s, nullptr, {runner, m_bench.queue, m_bench.terminal, m_bench.store});
        const QString path = QDir::currentPath() + u"/some/repo"_s;
        record->push();
        QCOMPARE(m_bench.terminal.requests.last().dir, path);
        record->openInApp(u"Editor"_s);
        revealInFinder(record->dir() + u"/docs/"_s, runner);
        QFile log(script + u".log"_s);
        QVERIFY(log.open(QFile::ReadOnly));
        QCOMPARE(QString::fromUtf8(log.readAll()),
                 u"-a Editor %1\n--reveal %1/docs/\n"_s.arg(path));
    }

    void findsProjectsOnTwoLevels()
    {
        const QTemporaryDir root;
        for (const auto* folder :
             {"App.xcodeproj/project.xcworkspace", "ios/My Other.xcworkspace",
              "ios/deep/Far.xcodeproj", ".build/Hidden.xcodeproj", "a#b.xcodeproj"})
            QVERIFY(QDir(root.path()).mkpath(QString::fromLatin1(folder)));
        writeFile(root.filePath(u"File.xcodeproj"_s), "a file has no slash to drop");

        QStringList kinds;
        QStringList paths;
        for (const RepoViewModel::PP& found : m_bench.record(root.path())->projectFiles()) {
            QCOMPARE(found.image, u"Xcode"_s);
            QCOMPARE(found.title, found.path.section(u'/', -1));
            kinds += found.path.section(u'.', -1);
            paths += found.path.mid(root.path().size() + 1);
        }
        QCOMPARE(kinds.join(u' '), u"xcodeproj xcodeproj xcworkspace xcworkspace"_s);
        paths.sort();
        QCOMPARE(paths, (QStringList{u"App.xcodeproj"_s, u"App.xcodeproj/project.xcworkspace"_s,
                                     u"a%23b.xcodeproj"_s, u"ios/My Other.xcworkspace"_s}));
        QVERIFY(m_bench.record(QString())->projectFiles().isEmpty());
    }

private:
    Workbench m_bench;
};

TARNWICK_TEST(RepositoryActionsTest)

#include "repository_actions_test.moc"
