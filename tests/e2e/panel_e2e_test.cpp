// SPDX-License-Identifier: MIT
#include "e2e/desktop.h"
#include "e2e/outside_world.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QTest>

using namespace tarnwick::test;

namespace {

const QString oddName = u"-n it's \"odd\" $(touch pwned) %20 ü"_qs;
const QString address = u"https://github.com/tarnwick/sample"_qs;

/// With a remote that has an address in the web but stands beside it, and one commit ahead of it.
void publish(const TemporaryRepository& repository)
{
    repository.run(
        {u"git clone -q --bare . ../up.git"_qs, u"git remote add origin "_qs + address + u".git"_qs,
         u"git config \"url.%1.insteadOf\" %2.git"_qs.arg(repository.beside(u"up.git"_qs), address),
         u"git fetch -q; git branch -q -u origin/main"_qs,
         u"git commit -q --allow-empty -m ahead"_qs});
}

QString headOf(const QString& gitFolder)
{
    QProcess git;
    git.start(u"git"_qs, {u"-C"_qs, gitFolder, u"log"_qs, u"-1"_qs, u"--format=%s"_qs, u"main"_qs});
    git.waitForFinished();
    return QString::fromUtf8(git.readAll()).trimmed();
}

} // namespace

/// The entries of the real panel, clicked, up to what reaches the desktop.
class PanelE2eTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { xdotool({u"key"_qs, u"Escape"_qs, u"Escape"_qs}); }

    void entriesReachTheDesktop();
    void gitRunsInTheTerminal();
    void promptsAreAnsweredInTheTerminal();
    void installedApplicationOpensTheRepository();
    void addedLinkOpensInTheBrowser();
    void keyboardReachesTheEntries();
};

void PanelE2eTest::entriesReachTheDesktop()
{
    const OutsideWorld world;
    const TemporaryRepository repository(oddName);
    publish(repository);
    repository.run({u"touch f1 f2 f3 f4 f5 f6 f7 f8 f9"_qs});
    const QString dir = repository.dir();
    RunningProgram program({{u"repos"_qs, dir},
                            {oddName + u"-urls"_qs, u"file:///usr @@ Folder"_qs},
                            {u"showinapps___Recorder.app"_qs, true}},
                           world.variables());
    QVERIFY(openPanel(oddName));

    const QList<std::pair<QString, QString>> starts{
        {u"Open in Recorder"_qs, u"<app><--open><%1><--name><Recorder><end>"_qs.arg(dir)},
        {u"Open repo on remote"_qs, u"<browser><%1>"_qs.arg(address)},
        {u"Folder"_qs, u"<app><--open></usr><--name><Recorder><end>"_qs}};
    for (const auto& [entry, expected] : starts) {
        const qsizetype before = world.started().size();
        QVERIFY2(clickNamed(entry), qPrintable(entry));
        QTRY_COMPARE_WITH_TIMEOUT(world.started().mid(before), QStringList{expected}, 10000);
    }
    for (const QString& entry : {u"Show in Finder"_qs, u"f3"_qs, u"... 1 more"_qs})
        QVERIFY2(clickNamed(entry), qPrintable(entry));
    QTRY_COMPARE_WITH_TIMEOUT(world.revealed(), (QStringList{dir, dir + u"/f3"_qs, dir}), 10000);

    QVERIFY(clickNamed(u"Start terminal here"_qs));
    QTRY_VERIFY_WITH_TIMEOUT(world.started().constLast().startsWith(u"<terminal>"), 10000);
    QVERIFY(world.started().constLast().endsWith(u"<%1>"_qs.arg(dir)));
    QVERIFY(!accessibleNamed(u"Show in Finder"_qs).name.isEmpty());
    QTRY_COMPARE(world.openTerminals(), 1);
    QVERIFY(!QFile::exists(dir + u"/pwned"_qs) && !QFile::exists(u"pwned"_qs));
}

void PanelE2eTest::gitRunsInTheTerminal()
{
    const OutsideWorld world;
    const TemporaryRepository repository(oddName);
    publish(repository);
    RunningProgram program({{u"repos"_qs, repository.dir()}}, world.variables());
    QVERIFY(openPanel(oddName));
    QVERIFY(clickNamed(u"Push"_qs));
    QTRY_COMPARE_WITH_TIMEOUT(headOf(repository.beside(u"up.git"_qs)), u"ahead"_qs, 20000);

    repository.run({u"git clone -q ../up.git ../other; cd ../other"_qs,
                    u"git commit -q --allow-empty -m theirs; git push -q"_qs});
    QVERIFY(clickNamed(u"Pull"_qs));
    QTRY_COMPARE_WITH_TIMEOUT(headOf(repository.dir()), u"theirs"_qs, 20000);

    repository.write(u"a"_qs, "changed\n");
    QVERIFY(clickNamed(u"Stash"_qs));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(repository.dir() + u"/.git/refs/stash"_qs), 20000);
    QCOMPARE(world.openTerminals(), 3);
    QCOMPARE(program.printedCount(u"/usr/bin/git -C %1 status"_qs.arg(repository.dir())), 2);
    for (const auto& [index, command] :
         {std::pair{0, u"push"_qs}, {1, u"pull"_qs}, {2, u"stash"_qs}})
        QVERIFY(world.started().value(index).endsWith(
            u"<%1><git><%2>"_qs.arg(repository.dir(), command)));
}

void PanelE2eTest::promptsAreAnsweredInTheTerminal()
{
    const OutsideWorld world;
    const TemporaryRepository repository;
    publish(repository);
    writeFile(repository.dir() + u"/.git/hooks/pre-push"_qs,
              "#!/bin/sh\nread answer < /dev/tty && [ \"$answer\" = yes ]\n");
    repository.run({u"chmod +x .git/hooks/pre-push"_qs});
    const RunningProgram program({{u"repos"_qs, repository.dir()}}, world.variables());
    QVERIFY(openPanel(u"repo"_qs));
    QVERIFY(clickNamed(u"Push"_qs));
    QTRY_COMPARE_WITH_TIMEOUT(world.openTerminals(), 1, 10000);
    xdotool({u"key"_qs, u"Escape"_qs, u"Escape"_qs});
    xdotool({u"search"_qs, u"--sync"_qs, u"--onlyvisible"_qs, u"--class"_qs, u"XTerm"_qs,
             u"windowactivate"_qs, u"--sync"_qs});
    QVERIFY(QTest::qWaitFor(
        [&] {
            xdotool({u"type"_qs, u"yes\n"_qs});
            return headOf(repository.beside(u"up.git"_qs)) == u"ahead";
        },
        20000));
}

void PanelE2eTest::installedApplicationOpensTheRepository()
{
    const TemporaryRepository repository(u"opened-in-thunar"_qs);
    const RunningProgram program(
        {{u"repos"_qs, repository.dir()}, {u"showinapps___Thunar File Manager.app"_qs, true}});
    QVERIFY(openPanel(u"opened-in-thunar"_qs));
    QVERIFY(clickNamed(u"Open in Thunar File Manager"_qs));
    xdotool({u"search"_qs, u"--sync"_qs, u"--onlyvisible"_qs, u"--name"_qs,
             u"opened-in-thunar.*Thunar"_qs});
    QProcess::execute(u"thunar"_qs, {u"--quit"_qs});
}

void PanelE2eTest::addedLinkOpensInTheBrowser()
{
    const OutsideWorld world;
    const TemporaryRepository repository;
    RunningProgram program({{u"repos"_qs, repository.dir()}}, world.variables());
    QVERIFY(openPanel(u"repo"_qs));
    QVERIFY(clickNamed(u"add link"_qs));
    QVERIFY(windowIsActive(u"Add links"_qs));
    const QString text = u"http://localhost/board?a=1&b @@ The board"_qs;
    xdotool({u"type"_qs, u"--delay"_qs, u"2"_qs, text});
    QVERIFY(clickNamed(u"Save and close settings"_qs));
    QTRY_COMPARE_WITH_TIMEOUT(program.preferences().value(u"repo-urls"_qs).toString(), text, 10000);
    QTRY_VERIFY_WITH_TIMEOUT(accessibleNamed(u"Add links"_qs).name.isEmpty(), 10000);

    QVERIFY(openPanel(u"repo"_qs));
    QVERIFY(clickNamed(u"The board"_qs));
    QTRY_COMPARE_WITH_TIMEOUT(world.started(),
                              QStringList{u"<browser><http://localhost/board?a=1&b>"_qs}, 10000);
    QCOMPARE(program.printedCount(u"http://localhost/board?a=1&b"_qs), 1);
}

void PanelE2eTest::keyboardReachesTheEntries()
{
    const OutsideWorld world;
    const TemporaryRepository repository;
    repository.run({u"mkdir App.xcodeproj"_qs});
    const RunningProgram program({{u"repos"_qs, repository.dir()}}, world.variables());
    QVERIFY(openMenu());
    QVERIFY(!appeared(u"repo, branch main, Repo is clean"_qs).name.isEmpty());
    // From the last row into its panel, to its first entry and on to the third.
    xdotool({u"key"_qs, u"Up"_qs, u"Right"_qs});
    QVERIFY(!appeared(u"Start terminal here"_qs).name.isEmpty());
    key(u"Return"_qs);
    QTRY_COMPARE_WITH_TIMEOUT(
        world.started(),
        QStringList{
            u"<app><--open><%1/App.xcodeproj><--name><Recorder><end>"_qs.arg(repository.dir())},
        10000);
    xdotool({u"key"_qs, u"Down"_qs, u"Down"_qs, u"Return"_qs});
    QTRY_COMPARE_WITH_TIMEOUT(world.openTerminals(), 1, 10000);
}

TARNWICK_TEST(PanelE2eTest)

#include "panel_e2e_test.moc"
