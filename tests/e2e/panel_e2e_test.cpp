// SPDX-License-Identifier: MIT
#include "e2e/desktop.h"
#include "e2e/outside_world.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QTest>

using namespace tarnwick::test;

namespace {

const QString oddName = u"-n it's \"odd\" $(touch pwned) %20 ü"_s;
const QString address = u"https://github.com/tarnwick/sample"_s;

/// With a remote that has an address in the web but stands beside it, and one commit ahead of it.
void publish(const TemporaryRepository& repository)
{
    repository.run(
        {u"git clone -q --bare . ../up.git"_s, u"git remote add origin "_s + address + u".git"_s,
         u"git config \"url.%1.insteadOf\" %2.git"_s.arg(repository.beside(u"up.git"_s), address),
         u"git fetch -q; git branch -q -u origin/main"_s,
         u"git commit -q --allow-empty -m ahead"_s});
}

QString headOf(const QString& gitFolder, const QString& branch = u"main"_s)
{
    QProcess git;
    git.start(u"git"_s, {u"-C"_s, gitFolder, u"log"_s, u"-1"_s, u"--format=%s"_s, branch});
    git.waitForFinished();
    return QString::fromUtf8(git.readAll()).trimmed();
}

/// Chooses an entry that opens a terminal, which then takes the keyboard from the menu.
bool openTerminalBy(const QString& entry, const QString& repository)
{
    return openPanel(repository) && clickNamed(entry) &&
           QTest::qWaitFor([] { return menuRows().isEmpty(); }, 10000);
}

} // namespace

/// The entries of the real panel, clicked, up to what reaches the desktop.
class PanelE2eTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { xdotool({u"key"_s, u"Escape"_s, u"Escape"_s}); }

    void entriesReachTheDesktop()
    {
        const OutsideWorld world;
        const TemporaryRepository repository(oddName);
        publish(repository);
        repository.run({u"touch f1 f2 f3 f4 f5 f6 f7 f8 f9"_s});
        const QString dir = repository.dir();
        RunningProgram program({{u"repos"_s, dir},
                                {oddName + u"-urls"_s, u"file:///usr @@ Folder"_s},
                                {u"showinapps___Recorder.app"_s, true}},
                               world.variables());
        QVERIFY(openPanel(oddName));

        const QList<std::pair<QString, QString>> starts{
            {u"Open in Recorder"_s, u"<app><--open><%1><--name><Recorder><end>"_s.arg(dir)},
            {u"Open repo on remote"_s, u"<browser><%1>"_s.arg(address)},
            {u"Folder"_s, u"<app><--open></usr><--name><Recorder><end>"_s}};
        for (const auto& [entry, expected] : starts) {
            const qsizetype before = world.started().size();
            QVERIFY2(clickNamed(entry), qPrintable(entry));
            QTRY_COMPARE_WITH_TIMEOUT(world.started().mid(before), QStringList{expected}, 10000);
        }
        for (const QString& entry : {u"Show in Finder"_s, u"f3"_s, u"... 1 more"_s})
            QVERIFY2(clickNamed(entry), qPrintable(entry));
        QTRY_COMPARE_WITH_TIMEOUT(world.revealed(), (QStringList{dir, dir + u"/f3"_s, dir}), 10000);

        QVERIFY(clickNamed(u"Start terminal here"_s));
        QTRY_VERIFY_WITH_TIMEOUT(world.started().constLast().startsWith(u"<terminal>"), 10000);
        QVERIFY(world.started().constLast().endsWith(u"<%1>"_s.arg(dir)));
        QTRY_COMPARE(world.openTerminals(), 1);
        QVERIFY(!QFile::exists(dir + u"/pwned"_s) && !QFile::exists(u"pwned"_s));
    }

    void exportedMenuTellsTheState()
    {
        const TemporaryRepository quiet(u"a_quiet & co"_s);
        const TemporaryRepository slow(u"slow"_s);
        const RunningProgram program({{u"repos"_s, quiet.dir() + u'\n' + slow.dir()}});
        const auto told = [](int lines) {
            return runScript(u"exported_menu.py"_s).split(u'\n').mid(0, lines);
        };
        QTRY_COMPARE_WITH_TIMEOUT(
            told(4),
            (QStringList{u"Tarnwick: 2 repositories watched, all clean"_s, u"Show repositories"_s,
                         u"a__quiet & co, main"_s, u"slow, main"_s}),
            20000);
        runScript(u"exported_menu.py"_s, {u"slow"_s});
        QVERIFY(!appeared(u"Actions for slow"_s).name.isEmpty());

        slow.run({u"echo '* filter=slow' > .git/info/attributes; echo changed > a"_s,
                  u"git config filter.slow.clean 'sleep 4; cat'"_s});
        runScript(u"exported_menu.py"_s, {u"Refresh all"_s});
        QVERIFY(!appeared(u"Refresh all repositories: 1 still being asked"_s).name.isEmpty());
        QCOMPARE(told(1).constFirst(),
                 u"Tarnwick: 2 repositories watched, all clean; 1 still being asked"_s);
        QTRY_COMPARE_WITH_TIMEOUT(told(4).constLast(), u"slow, main, 1 change"_s, 10000);
        QTRY_COMPARE(told(1).constFirst(), u"Tarnwick: 2 repositories watched, 1 not clean"_s);
        QVERIFY(accessibleNamed(u"Refresh all repositories: "_s).name.isEmpty());
    }

    void gitRunsInTheTerminal()
    {
        const OutsideWorld world;
        const TemporaryRepository repository(oddName);
        publish(repository);
        RunningProgram program({{u"repos"_s, repository.dir()}}, world.variables());
        QVERIFY(openTerminalBy(u"Push"_s, oddName));
        QTRY_COMPARE_WITH_TIMEOUT(headOf(repository.beside(u"up.git"_s)), u"ahead"_s, 20000);

        repository.run({u"git clone -q ../up.git ../other; cd ../other"_s,
                        u"git commit -q --allow-empty -m theirs; git push -q"_s});
        QVERIFY(openTerminalBy(u"Pull"_s, oddName));
        QTRY_COMPARE_WITH_TIMEOUT(headOf(repository.dir()), u"theirs"_s, 20000);

        repository.write(u"a"_s, "changed\n");
        QVERIFY(openTerminalBy(u"Stash"_s, oddName));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(repository.dir() + u"/.git/refs/stash"_s), 20000);
        QCOMPARE(world.openTerminals(), 3);

        repository.run({u"cd ../other; git commit -q --allow-empty -m later; git push -q"_s});
        runScript(u"exported_menu.py"_s, {u"Fetch all"_s});
        QTRY_COMPARE_WITH_TIMEOUT(headOf(repository.dir(), u"origin/main"_s), u"later"_s, 20000);
        QCOMPARE(headOf(repository.dir()), u"theirs"_s);
        QCOMPARE(world.openTerminals(), 4);
        QCOMPARE(program.printedCount(u"/usr/bin/git -C %1 status"_s.arg(repository.dir())), 2);
        for (const auto& [index, command] :
             {std::pair{0, u"push"_s}, {1, u"pull"_s}, {2, u"stash"_s}})
            QVERIFY(world.started().value(index).endsWith(
                u"<%1><git><%2>"_s.arg(repository.dir(), command)));
    }

    void promptsAreAnsweredInTheTerminal()
    {
        const OutsideWorld world;
        const TemporaryRepository repository;
        publish(repository);
        writeFile(repository.dir() + u"/.git/hooks/pre-push"_s,
                  "#!/bin/sh\nread answer < /dev/tty && [ \"$answer\" = yes ]\n");
        repository.run({u"chmod +x .git/hooks/pre-push"_s});
        const RunningProgram program({{u"repos"_s, repository.dir()}}, world.variables());
        QVERIFY(openTerminalBy(u"Push"_s, u"repo"_s));
        QVERIFY(QTest::qWaitFor(
            [&] {
                xdotool({u"type"_s, u"yes\n"_s});
                return headOf(repository.beside(u"up.git"_s)) == u"ahead";
            },
            20000));
    }

    void keyboardReachesTheEntries()
    {
        const OutsideWorld world;
        const TemporaryRepository repository;
        repository.run({u"mkdir App.xcodeproj"_s});
        const RunningProgram program({{u"repos"_s, repository.dir()}}, world.variables());
        QVERIFY(openMenu());
        QVERIFY(!appeared(u"repo, branch main, Repo is clean"_s).name.isEmpty());
        // From the last row into its panel, to its first entry and on to the third.
        xdotool({u"key"_s, u"Up"_s, u"Right"_s});
        QVERIFY(!appeared(u"Start terminal here"_s).name.isEmpty());
        key(u"Return"_s);
        QTRY_COMPARE_WITH_TIMEOUT(
            world.started(),
            QStringList{
                u"<app><--open><%1/App.xcodeproj><--name><Recorder><end>"_s.arg(repository.dir())},
            10000);
        xdotool({u"key"_s, u"Down"_s, u"Down"_s, u"Return"_s});
        QTRY_COMPARE_WITH_TIMEOUT(world.openTerminals(), 1, 10000);
    }
};

TARNWICK_TEST(PanelE2eTest)

#include "panel_e2e_test.moc"
