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
        row("scp form", u"git@github.com:owner/repo.git\n"_qs, u"https://github.com/owner/repo"_qs);
        row("https", u"https://github.com/owner/repo.git\n"_qs,
            u"https://github.com/owner/repo"_qs);
        row("host that does not end in com", u"git@gitlab.gnome.org:owner/repo.git"_qs,
            u"https://gitlab.gnome.org:owner/repo"_qs);
        row("ssh with a port", u"ssh://git@gitlab.com:22/o/r.git"_qs,
            u"ssh://https://gitlab.com/22/o/r"_qs);
        row("only in the name", u"git@example.com:me/github-notes.git"_qs,
            u"https://example.com/me/github-notes"_qs);
        row(".git within the name", u"https://github.com/o/a.github.io.git"_qs,
            u"https://github.com/o/ahub.io"_qs);
        row("another host", u"git@example.com:owner/repo.git"_qs, {});
        row("capitals", u"https://GitHub.com/owner/repo"_qs, {});
        row("no remote", {}, {});
        row("output that is no text", u"1?"_qs, {});
    }

    void remoteBecomesWebAddress()
    {
        QFETCH(QString, remote);
        QFETCH(QString, address);
        QCOMPARE(remoteWebAddress(remote).value_or(QString()), address);
    }

    void remoteIsLearntOnceAtCreation()
    {
        const TemporaryRepository repository;
        repository.run({u"git remote add origin git@github.com:owner/repo.git"_qs});
        const auto record = m_bench.record(repository.dir());
        QTRY_COMPARE(record->remoteUrl(), u"https://github.com/owner/repo"_qs);
        repository.run({u"git remote set-url origin git@gitlab.com:other/repo.git"_qs});
        refreshAll({record});
        QTRY_VERIFY(record->branchString() && record->gitStatus() && !record->isLoading());
        QCOMPARE(record->remoteUrl(), u"https://github.com/owner/repo"_qs);
    }

    void linksAreReadAsTyped_data()
    {
        const auto row = table<QString, QList<RepoLink>>("stored", "links");
        row("empty lines", u"\nhttp://a @@ Docs\n\n"_qs, {{u"http://a"_qs, u"Docs"_qs}});
        row("second separator", u"a @@ b @@ c"_qs, {{u"a"_qs, u"b"_qs}});
        row("spaces belong", u" a  @@  b \r\nc @@ "_qs, {{u" a "_qs, u" b \r"_qs}, {u"c"_qs, {}}});
        row("empty text", {}, {});
    }

    void linksAreReadAsTyped()
    {
        QFETCH(QString, stored);
        const auto here = m_bench.record(u"/nonexistent/a/app"_qs);
        const auto there = m_bench.record(u"/nonexistent/b/app"_qs);
        m_bench.store.setObject(stored, u"app-urls"_qs);
        QTEST(here->links(), "links");
        QTEST(there->links(), "links");
        for (const auto* malformed : {"http://a@@Docs", "a @@ b\n ", "http://a"}) {
            m_bench.store.setObject(QString::fromLatin1(malformed), u"app-urls"_qs);
            QVERIFY2(stopsProcess([&] { static_cast<void>(here->links()); }), malformed);
        }
    }

    void terminalIsTold()
    {
        const auto record = m_bench.record(u"/tmp/x"_qs);
        record->push();
        record->pull();
        record->stash();
        record->startTerminal();
        QStringList told;
        for (const TerminalRequest& request : m_bench.terminal.requests) {
            QCOMPARE(request.dir, u"/tmp/x"_qs);
            const QString command = request.command.join(u' ');
            const QString line = command.isEmpty() ? command : u" && "_qs + command;
            QCOMPARE(request.appleScript, u"tell application \"Terminal\"\n    activate\n"
                                          "    do script \"cd '/tmp/x'%1\"\nend tell"_qs.arg(line));
            told += command;
        }
        QCOMPARE(told, (QStringList{u"git push"_qs, u"git pull"_qs, u"git stash"_qs, {}}));
    }

    void projectsOfTwoLevelsAreFound()
    {
        const QTemporaryDir root;
        for (const auto* folder :
             {"App.xcodeproj/project.xcworkspace", "ios/My Other.xcworkspace",
              "ios/deep/Far.xcodeproj", ".build/Hidden.xcodeproj", "a#b.xcodeproj"})
            QVERIFY(QDir(root.path()).mkpath(QString::fromLatin1(folder)));
        writeFile(root.filePath(u"File.xcodeproj"_qs), "a file has no slash to drop");

        QStringList kinds;
        QStringList paths;
        for (const RepoViewModel::PP& found : m_bench.record(root.path())->projectFiles()) {
            QCOMPARE(found.image, u"Xcode"_qs);
            QCOMPARE(found.title, found.path.section(u'/', -1));
            kinds += found.path.section(u'.', -1);
            paths += found.path.mid(root.path().size() + 1);
        }
        QCOMPARE(kinds.join(u' '), u"xcodeproj xcodeproj xcworkspace xcworkspace"_qs);
        paths.sort();
        QCOMPARE(paths, (QStringList{u"App.xcodeproj"_qs, u"App.xcodeproj/project.xcworkspace"_qs,
                                     u"a%23b.xcodeproj"_qs, u"ios/My Other.xcworkspace"_qs}));
        QVERIFY(m_bench.record(QString())->projectFiles().isEmpty());
    }

private:
    Workbench m_bench;
};

TARNWICK_TEST(RepositoryActionsTest)

#include "repository_actions_test.moc"
