// SPDX-License-Identifier: MIT
#include "e2e/desktop.h"
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

/// Takes the row by its handle with the real pointer and lets go of it elsewhere.
void drag(const QString& row, QPoint to)
{
    const QRect area = appeared(row + u", "_qs).area;
    const auto moveTo = [](QPoint place) {
        xdotool({u"mousemove"_qs, QString::number(place.x()), QString::number(place.y())});
        QTest::qWait(50);
    };
    const QPoint from(area.left() + 12, area.center().y());
    moveTo(from);
    xdotool({u"mousedown"_qs, u"1"_qs});
    for (int step = 1; step <= 10; ++step)
        moveTo(from + (to - from) * step / 10);
    xdotool({u"mouseup"_qs, u"1"_qs});
}

} // namespace

/// The settings window, used as a person does, up to the menu and the preferences file.
class SettingsE2eTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listIsEdited();
    void switchedApplicationIsOffered();

private:
    [[nodiscard]] static bool openTab(const QString& tab)
    {
        return openMenu() && clickNamed(u"Settings"_qs) && windowIsActive(u"Settings"_qs) &&
               clickNamed(tab);
    }
};

void SettingsE2eTest::listIsEdited()
{
    const TemporaryRepository first(u"first"_qs);
    const TemporaryRepository second(u"second"_qs);
    const TemporaryRepository typed(u"typed one"_qs);
    RunningProgram program({{u"repos"_qs, first.dir() + u'\n' + second.dir()}});
    const auto stored = [&] {
        QStringList names;
        for (const QString& dir : program.preferences().value(u"repos"_qs).toString().split(u'\n'))
            names += dir.section(u'/', -1);
        return names.join(u'|');
    };
    QVERIFY(openTab(u"Repositories"_qs));
    QVERIFY(clickNamed(u"Path of a repository"_qs));
    xdotool({u"type"_qs, u"--delay"_qs, u"2"_qs, typed.dir()});
    QVERIFY(clickNamed(u"add repo"_qs));
    QTRY_COMPARE_WITH_TIMEOUT(stored(), u"typed one|first|second"_qs, 10000);

    drag(u"second"_qs, appeared(u"typed one, "_qs).area.center());
    QTRY_COMPARE_WITH_TIMEOUT(stored(), u"second|typed one|first"_qs, 10000);
    // Let go outside, the new order shows but is not stored.
    drag(u"first"_qs, appeared(u"second, "_qs).area.topLeft() + QPoint(30, -70));
    QTRY_COMPARE_WITH_TIMEOUT(listedNames().join(u'|'), u"first|second|typed one"_qs, 10000);
    QCOMPARE(stored(), u"second|typed one|first"_qs);

    QVERIFY(clickNamed(u"Remove first"_qs));
    QVERIFY(clickNamed(u"Keep it"_qs));
    QTRY_VERIFY(accessibleNamed(u"Please confirm the removal"_qs).name.isEmpty());
    QVERIFY(clickNamed(u"Remove first"_qs));
    QVERIFY(clickNamed(u"Remove it"_qs));
    QTRY_COMPARE_WITH_TIMEOUT(stored(), u"second|typed one"_qs, 10000);
    QVERIFY(clickNamed(u"Save and close settings"_qs));
    QTRY_VERIFY_WITH_TIMEOUT(accessibleNamed(u"Settings"_qs).name.isEmpty(), 10000);
    QVERIFY(openMenu());
    QTRY_COMPARE_WITH_TIMEOUT(menuRows(),
                              (QStringList{u"second, branch main, Repo is clean"_qs,
                                           u"typed one, branch main, Repo is clean"_qs}),
                              10000);
    key(u"Escape"_qs);
}

void SettingsE2eTest::switchedApplicationIsOffered()
{
    const TemporaryRepository repository;
    const RunningProgram program({{u"repos"_qs, repository.dir()}});
    QVERIFY(openTab(u"Applications"_qs));
    QVERIFY(clickNamed(u"XTerm.app"_qs));
    QTRY_VERIFY_WITH_TIMEOUT(program.preferences().value(u"showinapps___XTerm.app"_qs).toBool(),
                             10000);
    QVERIFY(clickNamed(u"Save and close settings"_qs));
    QVERIFY(openPanel(u"repo"_qs));
    QVERIFY(!accessibleNamed(u"Open in XTerm"_qs).name.isEmpty());
    xdotool({u"key"_qs, u"Escape"_qs, u"Escape"_qs});
}

TARNWICK_TEST(SettingsE2eTest)

#include "settings_e2e_test.moc"
