// SPDX-License-Identifier: MIT
#include "e2e/desktop.h"
#include "support/pixels.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QTest>

using namespace tarnwick::test;

/// The real program on the real panel that the desktop was started with.
class MenuE2eTest : public QObject
{
    Q_OBJECT

    const QString statusRun = u"/usr/bin/git -C "_s;

private Q_SLOTS:
    void cleanup() { key(u"Escape"_s); }

    void rowsFollowTheList()
    {
        const TemporaryRepository dirty(u"dirty it's"_s);
        dirty.run({u"git checkout -q -b feature/x; touch new; echo x >> a; git mv b z"_s});
        const TemporaryRepository clean(u"clean"_s);
        RunningProgram program({{u"repos"_s, QStringList{dirty.dir(), u"/none/plain"_s,
                                                         u"/other/plain"_s, clean.dir() + u'/'}
                                                 .join(u'\n')}});
        QVERIFY(openMenu());
        QTRY_COMPARE_WITH_TIMEOUT(
            menuRows(),
            (QStringList{u"dirty it's, branch feature/x, 1 change, 1 untracked"_s,
                         u"plain in none"_s, u"plain in other"_s,
                         u"clean, branch main, Repo is clean"_s}),
            10000);
        QTRY_COMPARE(accessibleNamed(u"dirty"_s).description, u"1 renamed, no upstream"_s);
        // Directly below the panel, one row under the other, all of it on the screen.
        const QRect first = accessibleNamed(u"dirty"_s).area;
        const QRect last = accessibleNamed(u"clean"_s).area;
        QVERIFY(first.top() > statusItemPosition().y());
        QVERIFY(first.left() == last.left() && first.bottom() < last.top());
        QVERIFY(screenshot().rect().contains(first | last));
        QCOMPARE(program.printedCount(u"nmot repo"_s), 2);
    }

    void opensBesideTheItem()
    {
        const RunningProgram program;
        QVERIFY(openMenu());
        const QPoint item = statusItemPosition();
        const QRect button = appeared(u"Refresh all"_s).area;
        QVERIFY(button.top() > item.y() && button.top() < item.y() + 50);
        QVERIFY(button.right() > item.x() - 150);
    }

    void refreshesWhenOpenedIfWanted_data()
    {
        const auto row = table<QJsonValue, QString>("refreshOnMenuOpen", "expected");
        row("never touched", {}, u"repo, branch main, Repo is clean"_s);
        row("off", false, u"repo, branch main, Repo is clean"_s);
        row("on", true, u"repo, branch other, 1 change"_s);
    }

    void refreshesWhenOpenedIfWanted()
    {
        QFETCH(QJsonValue, refreshOnMenuOpen);
        QFETCH(QString, expected);
        const TemporaryRepository repository;
        QJsonObject preferences{{u"repos"_s, repository.dir()}};
        if (!refreshOnMenuOpen.isNull())
            preferences.insert(u"refreshOnMenuOpen"_s, refreshOnMenuOpen);
        RunningProgram program(preferences);
        QVERIFY(openMenu());
        QTRY_COMPARE_WITH_TIMEOUT(menuRows(), QStringList{u"repo, branch main, Repo is clean"_s},
                                  10000);
        key(u"Escape"_s);
        QTRY_VERIFY(menuRows().isEmpty());

        repository.run({u"git checkout -q -b other; echo x >> a"_s});
        const qsizetype runsBefore = program.printedCount(statusRun);
        QVERIFY(openMenu());
        QTRY_COMPARE_WITH_TIMEOUT(menuRows(), QStringList{expected}, 10000);
        QCOMPARE(program.printedCount(statusRun) - runsBefore, refreshOnMenuOpen.toBool() ? 2 : 0);
    }

    void pointerOpensAndSwitchesPanels()
    {
        const RunningProgram program({{u"repos"_s, u"/none/one\n/none/two\n/none/three"_s}});
        QVERIFY(openMenu());
        const QRect one = appeared(u"one"_s).area;
        const QRect three = accessibleNamed(u"three"_s).area;
        const auto blank = [](const QRect& row) {
            return screenshot().pixelColor(row.center() + QPoint(0, 12));
        };
        QCOMPARE(blank(one), blank(three));
        movePointer({one.center()});
        const QRect panel = appeared(u"Actions for one"_s).area;
        QVERIFY(!panel.isNull());
        QVERIFY(blank(one) != blank(three));

        // Across the rows below, straight to the far end of the panel.
        QList<QPoint> path;
        for (int i = 1; i <= 12; ++i)
            path += one.center() + (panel.center() + QPoint(0, 80) - one.center()) * i / 12;
        movePointer(path);
        QVERIFY(!appeared(u"Actions for one"_s).name.isEmpty());

        movePointer({three.center()});
        QVERIFY(!appeared(u"Actions for three"_s).name.isEmpty());
        QVERIFY(accessibleNamed(u"Actions for one"_s).name.isEmpty());
        QVERIFY(blank(three) != blank(one));
    }

    void typingFindsARow()
    {
        QStringList dirs{u"/none/\u00c9clair \u00e9t\u00e9"_s};
        for (int i = 1; i <= 60; ++i)
            dirs += u"/none/project "_s + QString::number(i);
        dirs += u"/none/more/project 57"_s;
        const RunningProgram program({{u"repos"_s, dirs.join(u'\n')}});
        for (const auto& [letters, key, row] :
             {std::tuple(u"clair E"_s, u"Return"_s, u"\u00c9clair \u00e9t\u00e9"_s),
              {u"57"_s, u"Right"_s, u"project 57 in none"_s}}) {
            QVERIFY(openMenu());
            xdotool({u"type"_s, letters});
            xdotool({u"key"_s, key});
            QVERIFY(!appeared(u"Actions for "_s + row).name.isEmpty());
            xdotool({u"key"_s, u"Escape"_s, u"Escape"_s});
        }
    }

    void branchClickChangesNothing()
    {
        const TemporaryRepository repository;
        RunningProgram program({{u"repos"_s, repository.dir()}});
        QVERIFY(openMenu());
        const QRect row = accessibleNamed(u"repo, branch main"_s).area;
        // The second of three lines, behind the symbol.
        click({row.left() + 50, row.center().y()});
        QTRY_COMPARE(program.printedCount(u"Open sourcetree?"_s), 1);
        QVERIFY(!appeared(u"Show in Finder"_s).name.isEmpty());
        click({row.left() + 51, row.center().y()});
        QTRY_COMPARE(program.printedCount(u"Open sourcetree?"_s), 2);
        QVERIFY(!accessibleNamed(u"Show in Finder"_s).name.isEmpty());
        click({row.left() + 250, row.center().y()});
        QCOMPARE(menuRows().size(), 1);
        QCOMPARE(program.printedCount(u"Open sourcetree?"_s), 2);
    }

    void contextMenuRefreshesAll()
    {
        const TemporaryRepository repository;
        RunningProgram program({{u"repos"_s, repository.dir()}});
        QTRY_VERIFY_WITH_TIMEOUT(!statusItemPosition().isNull(), 20000);
        QTRY_COMPARE(program.printedCount(statusRun), 3);
        // "Refresh all" is the third entry; a menu may take a moment to accept keys.
        QVERIFY(QTest::qWaitFor(
            [&] {
                const QImage closed = screenshot();
                click(statusItemPosition(), 3);
                static_cast<void>(QTest::qWaitFor([&] { return screenshot() != closed; }, 2000));
                xdotool({u"key"_s, u"Down"_s, u"Down"_s, u"Down"_s, u"Return"_s});
                return QTest::qWaitFor([&] { return program.printedCount(statusRun) == 5; }, 2000);
            },
            15000));
    }

    void followsTheDesktopIntoTheDark()
    {
        const TemporaryRepository repository;
        const RunningProgram program({{u"repos"_s, repository.dir()}});
        QVERIFY(openMenu());
        QTRY_VERIFY(showsColor(screenshot(), QColor(0, 0x99, 0)));
        runScript(u"desktop_theme.sh"_s, {u"dark"_s});
        QTRY_VERIFY_WITH_TIMEOUT(showsColor(screenshot(), QColor(0x32, 0xd7, 0x4b)), 10000);
        runScript(u"desktop_theme.sh"_s, {u"light"_s});
        QTRY_VERIFY_WITH_TIMEOUT(showsColor(screenshot(), QColor(0, 0x99, 0)), 10000);
    }
};

TARNWICK_TEST(MenuE2eTest)

#include "menu_e2e_test.moc"
