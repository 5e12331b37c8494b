// SPDX-License-Identifier: MIT
#include "e2e/desktop.h"
#include "support/table.h"
#include "support/temporary_repository.h"
#include "support/test_registry.h"

#include <QTest>

using namespace tarnwick::test;

namespace {

QStringList listedNames()
{
    QStringList names;
    for (const Accessible& item : accessibleTree()) {
        if (item.role == u"list item")
            names += item.name.section(u',', 0, 0);
    }
    return names;
}

/// Drags with the real pointer.
void drag(QPoint from, QPoint to)
{
    const auto moveTo = [](QPoint place) {
        xdotool({u"mousemove"_s, QString::number(place.x()), QString::number(place.y())});
        QTest::qWait(50);
    };
    moveTo(from);
    xdotool({u"mousedown"_s, u"1"_s});
    for (int step = 1; step <= 10; ++step)
        moveTo(from + (to - from) * step / 10);
    xdotool({u"mouseup"_s, u"1"_s});
}

/// Drags the row by its handle.
void dragRow(const QString& row, QPoint to)
{
    const QRect area = appeared(row + u", "_s).area;
    drag({area.left() + 12, area.center().y()}, to);
}

} // namespace

/// Drives the settings window with pointer and keyboard, and checks menu and preferences file.
class SettingsE2eTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listIsEdited()
    {
        const TemporaryRepository first(u"first"_s);
        const TemporaryRepository second(u"second"_s);
        const TemporaryRepository typed(u"typed one"_s);
        RunningProgram program({{u"repos"_s, first.dir() + u'\n' + second.dir()}});
        const auto stored = [&] {
            QStringList names;
            for (const QString& dir :
                 program.preferences().value(u"repos"_s).toString().split(u'\n'))
                names += dir.section(u'/', -1);
            return names.join(u'|');
        };
        QVERIFY(openTab(u"Repositories"_s));
        QVERIFY(clickNamed(u"Path of a repository"_s));
        xdotool({u"type"_s, u"--delay"_s, u"2"_s, typed.dir()});
        QVERIFY(clickNamed(u"add repo"_s));
        QTRY_COMPARE_WITH_TIMEOUT(stored(), u"typed one|first|second"_s, 10000);

        dragRow(u"second"_s, appeared(u"typed one, "_s).area.center());
        QTRY_COMPARE_WITH_TIMEOUT(stored(), u"second|typed one|first"_s, 10000);
        // Dropped outside, the new order is shown but not stored.
        dragRow(u"first"_s, appeared(u"second, "_s).area.topLeft() + QPoint(30, -70));
        QTRY_COMPARE_WITH_TIMEOUT(listedNames().join(u'|'), u"first|second|typed one"_s, 10000);
        QCOMPARE(stored(), u"second|typed one|first"_s);

        QVERIFY(clickNamed(u"Remove first"_s));
        QVERIFY(clickNamed(u"Keep it"_s));
        QTRY_VERIFY(accessibleNamed(u"Please confirm the removal"_s).name.isEmpty());
        QVERIFY(clickNamed(u"Remove first"_s));
        QVERIFY(clickNamed(u"Remove it"_s));
        QTRY_COMPARE_WITH_TIMEOUT(stored(), u"second|typed one"_s, 10000);
        QVERIFY(clickNamed(u"Save and close settings"_s));
        QTRY_VERIFY_WITH_TIMEOUT(accessibleNamed(u"Settings"_s).name.isEmpty(), 10000);
        QVERIFY(openMenu());
        QTRY_COMPARE_WITH_TIMEOUT(menuRows(),
                                  (QStringList{u"second, branch main, Repo is clean"_s,
                                               u"typed one, branch main, Repo is clean"_s}),
                                  10000);
        key(u"Escape"_s);
    }

    void folderIsChosenOrDropped()
    {
        const QTemporaryDir root;
        const QStringList dirs{root.filePath(u"first"_s), root.filePath(u"it's a folder"_s)};
        for (const QString& dir : dirs)
            QVERIFY(QDir().mkpath(dir));
        const RunningProgram program;
        QVERIFY(openTab(u"Repositories"_s));
        const QRect field = appeared(u"Path of a repository"_s).area;
        click({field.right() - 14, field.center().y()});
        QVERIFY(windowIsActive(u"Choose a folder"_s));
        xdotool({u"type"_s, dirs.first()});
        key(u"Return"_s);
        QVERIFY(windowIsActive(u"Settings"_s));
        QVERIFY(clickNamed(u"add repo"_s));

        QProcess fileManager;
        fileManager.start(QStringLiteral(TARNWICK_SCRIPTS "/folder_to_drag.py"), {dirs.last()});
        QVERIFY(fileManager.waitForReadyRead());
        drag({20, 20}, field.center());
        QVERIFY(clickNamed(u"add repo"_s));
        QTRY_COMPARE_WITH_TIMEOUT(program.preferences().value(u"repos"_s),
                                  dirs.last() + u'\n' + dirs.first(), 10000);
        fileManager.kill();
        fileManager.waitForFinished();
    }

    void switchedApplicationIsOffered()
    {
        const TemporaryRepository repository;
        const RunningProgram program({{u"repos"_s, repository.dir()}});
        QVERIFY(openTab(u"Applications"_s));
        QVERIFY(clickNamed(u"XTerm.app"_s));
        QTRY_VERIFY_WITH_TIMEOUT(program.preferences().value(u"showinapps___XTerm.app"_s).toBool(),
                                 10000);
        QVERIFY(clickNamed(u"Save and close settings"_s));
        QVERIFY(openPanel(u"repo"_s));
        QVERIFY(!accessibleNamed(u"Open in XTerm"_s).name.isEmpty());
        xdotool({u"key"_s, u"Escape"_s, u"Escape"_s});
    }

    void windowHasContentSizeAndIcon_data()
    {
        const auto row = table<QString, QSize, QSize>("title", "requested", "expected");
        row("nothing may grow", u"Settings"_s, {900, 800}, {600, 600});
        row("the height may grow", u"Add links"_s, {1000, 800}, {900, 800});
    }

    void windowHasContentSizeAndIcon()
    {
        QFETCH(QString, title);
        QFETCH(QSize, requested);
        const TemporaryRepository repository;
        const RunningProgram program({{u"repos"_s, repository.dir()}});
        QVERIFY(title == u"Settings" ? openMenu() : openPanel(u"repo"_s));
        QVERIFY(clickNamed(title == u"Settings" ? title : u"add link"_s));
        QVERIFY(windowIsActive(title));
        xdotool({u"getactivewindow"_s, u"windowsize"_s, QString::number(requested.width()),
                 QString::number(requested.height())});
        const QRect before = appeared(title).area;
        QTEST(before.size(), "expected");
        // The window manager would maximise it.
        const QPoint titleBar = before.topLeft() + QPoint(before.width() / 2, -12);
        click(titleBar);
        click(titleBar);
        QCOMPARE(appeared(title).area, before);

        QProcess xprop;
        xprop.start(u"xprop"_s, {u"-name"_s, title, u"_NET_WM_ICON"_s});
        QVERIFY(xprop.waitForFinished());
        QVERIFY(xprop.readAll().contains("Icon (64 x 64)"));
    }

private:
    [[nodiscard]] static bool openTab(const QString& tab)
    {
        return openMenu() && clickNamed(u"Settings"_s) && windowIsActive(u"Settings"_s) &&
               clickNamed(tab);
    }
};

TARNWICK_TEST(SettingsE2eTest)

#include "settings_e2e_test.moc"
