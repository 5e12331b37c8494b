// SPDX-License-Identifier: MIT
#include "settings/settings_fixture.h"
#include "settings/window/app_list.h"
#include "support/test_registry.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>

using namespace tarnwick::test;

namespace {

QAbstractButton* buttonNamed(const QWidget& view, const QString& name)
{
    for (auto* button : view.findChildren<QAbstractButton*>()) {
        if (button->text() == name || button->accessibleName() == name)
            return button;
    }
    return nullptr;
}

} // namespace

class SettingsViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void optionsFollowStore()
    {
        SettingsFixture f;
        const auto one = f.view();
        const auto other = f.view();
        const QString launch = u"Launch on startup"_s;
        const QString icons = u"Use only icons in repo statuses"_s;
        QVERIFY(buttonNamed(*one, launch)->isChecked());
        QVERIFY(buttonNamed(*one, u"Show clean repo status"_s)->isChecked());
        QVERIFY(!buttonNamed(*one, icons)->isChecked());
        QVERIFY(
            !buttonNamed(*one, u"Refresh repos automatically when menu is opened"_s)->isChecked());
        const auto labels = one->findChildren<QLabel*>();
        QVERIFY(std::ranges::any_of(labels, [](auto* l) { return l->text() == u"version 42"; }));

        f.bench.store.setBool(true, u"onyIcons"_s);
        QVERIFY(buttonNamed(*one, icons)->isChecked());
        buttonNamed(*one, icons)->click();
        QVERIFY(!buttonNamed(*other, icons)->isChecked());
        QCOMPARE(f.bench.store.dictionaryRepresentation(), (QVariantMap{{u"onyIcons"_s, false}}));
        QCOMPARE(f.host.logins, QList<bool>());

        buttonNamed(*one, launch)->click();
        QVERIFY(!buttonNamed(*other, launch)->isChecked());
        f.bench.store.setBool(false, u"launchOnStartup"_s);
        buttonNamed(*other, launch)->click();
        // Each window with its own toggle.
        QCOMPARE(f.host.logins, (QList<bool>{false, false, true, true}));
        QCOMPARE(f.host.rebuilds, 0);
    }

    void saveClosesOnlyKeyWindow()
    {
        SettingsFixture f;
        const auto one = f.view();
        const auto other = f.view();
        one->show();
        other->show();
        other->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(other.get()));
        QCOMPARE(other->size(), QSize(600, 600));
        buttonNamed(*other, u"Save and close settings"_s)->click();
        QCOMPARE(f.host.rebuilds, 1);
        QVERIFY(!other->isVisible());
        QVERIFY(one->isVisible());
    }

    void listsApplications_data()
    {
        const auto row = table<QString, QString, QString>("system", "user", "expected");
        row("by character code, applications only", u"b.app notes.txt Utilities A.app C.APP"_s,
            u"."_s, u"A.app b.app"_s);
        row("system before user, with duplicates", u"z.app m.app"_s, u"m.app a.app"_s,
            u"m.app z.app a.app m.app"_s);
        row("unreadable", u"a.app"_s, {}, u"a.app Unable to read %1/user/*.app"_s);
        row("both unreadable", {}, {},
            u"Unable to read %1/system/*.app Unable to read %1/user/*.app"_s);
    }

    void listsApplications()
    {
        QFETCH(QString, system);
        QFETCH(QString, user);
        QFETCH(QString, expected);
        SettingsFixture f;
        for (const auto& [path, names] :
             {std::pair(f.system.path(), system), {f.user.path(), user}}) {
            for (const QString& name : names.split(u' ', Qt::SkipEmptyParts))
                QVERIFY(QDir().mkpath(path + name));
        }
        QCOMPARE(AppList(f.system, f.user).list().join(u' '),
                 expected.replace(u"%1"_s, f.bench.folder.path()));
    }
};

TARNWICK_TEST(SettingsViewTest)

#include "settings_view_test.moc"
