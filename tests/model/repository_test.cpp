// SPDX-License-Identifier: MIT
#include "model/distinguishing_folders.h"
#include "model/git_quoting.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"
#include "support/workbench.h"

#include <QAbstractEventDispatcher>
#include <QDateTime>
#include <QThread>

using namespace tarnwick::test;

/// Records of real repositories, made by real git.
class RepositoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsRealRepositories_data()
    {
        const auto row = table<QStringList, QString>("commands", "expected");
        const QString upstream =
            u"git clone -q --bare . ../up.git; git remote add origin ../up.git;"
            "git fetch -q; git branch -q -u origin/main"_s;
        const QString ahead = u"echo x >> a; git commit -q -am more"_s;
        const QString behind = u"git reset -q --hard HEAD~; git push -q -f origin HEAD@{1}:main;"
                               "git fetch -q"_s;

        row("clean", {}, u"main: clean"_s);
        row("level with its upstream", {upstream}, u"main: clean"_s);
        row("ahead", {upstream, ahead, ahead}, u"main: 2 ahead"_s);
        row("behind", {upstream, ahead, behind}, u"main: 1 behind"_s);
        row("diverged", {upstream, ahead, behind, u"echo y > n; git add n; git commit -q -m n"_s},
            u"main: 1 behind, 1 ahead"_s);
        row("all six of the working tree",
            {u"echo x >> a; echo x >> b; git add b; git rm -q c; rm d; touch e f; git add e"_s},
            u"main: 1 change, 1 added, 1 untracked, 1 staged, 1 removed, 1 deleted"_s);
        row("feature branch", {u"git checkout -q -b feature/x"_s}, u"feature/x: clean"_s);
        row("detached head", {u"git checkout -q --detach"_s}, u"HEAD: clean"_s);
        row("unborn branch", {u"rm -rf .git; git init -q -b main"_s}, u"HEAD: 4 untracked"_s);
        row("conflict",
            {u"git checkout -q -b o; echo o > a; git commit -q -am o"_s,
             u"git checkout -q main; echo m > a; git commit -q -am m"_s,
             u"git merge -q o || true"_s},
            u"main: clean"_s);
        row("rename", {u"git mv a z; echo x >> b"_s}, u"main: 1 change"_s);
        row("invalid repository", {u"rm -rf .git; mkdir .git"_s}, u": clean"_s);
    }

    void readsRealRepositories()
    {
        QFETCH(QStringList, commands);
        const TemporaryRepository repository;
        repository.run(commands);
        QTEST(loadedText(*m_bench.record(repository.dir())), "expected");
    }

    void sameNamesAreToldApart()
    {
        QCOMPARE(distinguishingFolders({u"/s/work/app"_s,
                                        u"/s/mine/app"_s,
                                        u"/s/x"_s,
                                        u"/a/l/y"_s,
                                        u"/b/l/y"_s,
                                        u"/a/l/y"_s,
                                        u"y"_s,
                                        {}}),
                 (QStringList{u"work"_s, u"mine"_s, {}, u"a/l"_s, u"b/l"_s, u"a/l"_s, {}, {}}));
    }

    void ignoresInheritedEnvironment()
    {
        const TemporaryRepository repository;
        repository.run(
            {u"git clone -q --bare . ../up.git; git remote add origin ../up.git"_s,
             u"git fetch -q; git branch -q -u origin/main; git config color.status always"_s,
             u"git config color.ui always; git config status.aheadBehind false; git commit -q --allow-empty -m x; echo x >> a"_s});
        const std::pair<const char*, const char*> environment[]{
            {"GIT_DIR", "/nonexistent/.git"},
            {"GIT_WORK_TREE", "/"},
            {"GIT_INDEX_FILE", "/nonexistent/index"},
            {"GIT_CONFIG_PARAMETERS", "'status.branch'='false' 'color.status'='always'"},
            {"GIT_CONFIG_COUNT", "nonsense"}};
        for (const auto& [variable, value] : environment) {
            qputenv(variable, value);
            const QString read = loadedText(*m_bench.record(repository.dir()));
            qunsetenv(variable);
            QVERIFY2(read == u"main: 1 change, 1 ahead", variable);
        }
    }

    void keepsTheIndexAsItIs()
    {
        const TemporaryRepository repository;
        repository.run({u"touch -d 2001-01-01 a"_s}); // git would note the new time in the index
        const QFileInfo index(repository.dir() + u"/.git/index"_s);
        const QDateTime written = index.fileTime(QFile::FileMetadataChangeTime);
        QCOMPARE(loadedText(*m_bench.record(repository.dir())), u"main: clean"_s);
        QCOMPARE(QFileInfo(index.filePath()).fileTime(QFile::FileMetadataChangeTime), written);
    }

    void undecodableStatusIsPublishedOnTheMainThread()
    {
        const TemporaryRepository repository;
        const QString git = repository.beside(u"git"_s);
        writeFile(git, "#!/bin/sh\nprintf '\\377'\n");
        QVERIFY(QFile::setPermissions(git, QFile::ReadOwner | QFile::ExeOwner));
        const CommandRunner runner{{.git = git}};
        const auto record = RepoViewModel::create(
            repository.dir(), nullptr, {runner, m_bench.queue, m_bench.terminal, m_bench.store});
        int published = 0;
        for (const auto signal :
             {&RepoViewModel::isLoadingChanged, &RepoViewModel::statusStringChanged})
            connect(
                record.get(), signal, record.get(),
                [&] { published += QThread::currentThread() == thread(); }, Qt::DirectConnection);
        QTRY_COMPARE(published, 3);
        m_bench.refreshQueue.add({record});
        QTRY_COMPARE(published, 6);
        QCOMPARE(record->gitStatus(), u"1?"_s);
    }

    void handlesSpecialCharactersInPaths()
    {
        const TemporaryRepository repository(u"it's \"my\" r\u00e9p\u00f4 \U0001f33f"_s);
        const QStringList names{u"A M \u00e9"_s, u" \"q\" \\"_s, u"line\nfeed\t"_s,
                                u"\U0001f33f/x"_s};
        for (const QString& name : names)
            repository.write(name, "new");
        const auto odd = m_bench.record(repository.dir());
        QCOMPARE(odd->name(), u"it's \"my\" r\u00e9p\u00f4 \U0001f33f"_s);
        QCOMPARE(loadedText(*odd), u"main: 1 change, 4 untracked"_s);
        for (const QString& line : odd->changedFiles())
            QVERIFY2(QFile::exists(repository.dir() + u'/' + unquotedGitPath(line.mid(3))),
                     qPrintable(line));
        QCOMPARE(m_bench.record(u"/nonexistent/"_s)->name(), QString());
    }

    void plainFolderRunsNoGit()
    {
        const QTemporaryDir folder;
        // A record that ran this git would end the process.
        const CommandRunner noGit{{.git = u"/nonexistent/git"_s}};
        const auto plain = RepoViewModel::create(
            folder.path(), nullptr, {noGit, m_bench.queue, m_bench.terminal, m_bench.store});
        m_bench.refreshQueue.add({plain});
        QCoreApplication::processEvents();
        QVERIFY(!plain->isRepo() && !plain->branchString() && !plain->isLoading());
    }

    void refreshKeepsWhatCreationDecided()
    {
        const TemporaryRepository repository;
        const auto watched = m_bench.record(repository.dir());
        QStringList loading;
        connect(watched.get(), &RepoViewModel::isLoadingChanged, watched.get(),
                [&] { loading += watched->isLoading() ? u"on"_s : u"off"_s; });
        QCOMPARE(loadedText(*watched), u"main: clean"_s);
        QVERIFY(watched->isMainBranch());

        for (const auto& branch : {u"master"_s, u"develop"_s, u"Main"_s}) {
            repository.run({u"git checkout -q -b "_s + branch});
            watched->refreshBranch();
            QTRY_COMPARE(watched->branchString(), branch);
            QCOMPARE(watched->isMainBranch(), branch != u"Main");
        }
        repository.run({u"touch n"_s});
        m_bench.refreshQueue.add({watched});
        QTRY_COMPARE(watched->statusString(), u"1\u00a0untracked"_s);
        QCOMPARE(loading, (QStringList{u"on"_s, u"off"_s, u"on"_s, u"off"_s}));

        repository.run({u"rm -rf .git"_s});
        m_bench.refreshQueue.add({watched});
        QTRY_COMPARE(watched->branchString(), QString());
        QTRY_VERIFY(!watched->statusString());
        QVERIFY(watched->isRepo());
    }

    void refreshLetsTheEventLoopRun()
    {
        const TemporaryRepository repository;
        const RepoViewModels records{m_bench.record(repository.dir()),
                                     m_bench.record(repository.dir() + u'/')};
        QTRY_VERIFY(records[0]->branchString() && records[1]->branchString());
        int turn = 0;
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
                [&] { ++turn; });
        QList<int> turns;
        QStringList refreshed;
        for (const auto& record : records)
            connect(record.get(), &RepoViewModel::branchStringChanged, this, [&] {
                refreshed += record->name();
                turns += turn;
            });
        m_bench.refreshQueue.add(records);
        m_bench.refreshQueue.add({records[0]});
        QTRY_COMPARE(refreshed, (QStringList{u"repo"_s, {}, u"repo"_s}));
        QVERIFY(turns[0] < turns[1] && turns[1] < turns[2]);
    }

private:
    /// The branch and the summary, once both queries have ended.
    QString loadedText(const RepoViewModel& record)
    {
        if (!QTest::qWaitFor([&] { return record.gitStatus() && record.branchString(); }, 10000))
            return u"never settled"_s;
        return record.branchString().value() + u": "_s +
               record.statusString().value_or(u"clean"_s).replace(QChar::Nbsp, u' ');
    }

    Workbench m_bench;
};

TARNWICK_TEST(RepositoryTest)

#include "repository_test.moc"
