// SPDX-License-Identifier: MIT
#include "shell/menu/click_guard.h"
#include "shell/menu/menu_placement.h"
#include "shell/menu/submenu_path.h"
#include "support/test_registry.h"

using namespace tarnwick::test;
using namespace std::chrono_literals;

class MenuPlacementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void menuStaysBesideItem_data()
    {
        const auto row = table<QRect, QRect, QSize, QRect>("item", "available", "wanted", "menu");
        const QRect bare(0, 0, 1366, 768);
        const QRect belowPanel(0, 26, 1366, 742);
        const QRect abovePanel(0, 0, 1366, 740);
        const QSize menu(340, 268);
        const QSize longMenu(340, 5000);
        row("below", {600, 1, 24, 24}, belowPanel, menu, {600, 26, 340, 268});
        row("below, at the corner", {1340, 1, 24, 24}, belowPanel, menu, {1026, 26, 340, 268});
        row("below, panel without strut", {600, 1, 24, 24}, bare, menu, {600, 25, 340, 268});
        row("above", {600, 742, 24, 24}, abovePanel, menu, {600, 472, 340, 268});
        row("beside, at the corner", {1342, 743, 24, 24}, {0, 0, 1340, 768}, menu,
            {1000, 500, 340, 268});
        row("above, too long", {600, 742, 24, 24}, bare, longMenu, {600, 0, 340, 742});
        row("beside, left panel", {2, 400, 24, 24}, bare, menu, {26, 400, 340, 268});
        row("below the pointer", {700, 10, 0, 0}, belowPanel, menu, {688, 26, 340, 268});
        row("entry below the panel", {700, 130, 0, 0}, belowPanel, menu, {688, 26, 340, 268});
        row("last entry below the panel", {700, 620, 0, 0}, belowPanel, menu, {688, 26, 340, 268});
        row("entry above the panel", {100, 640, 0, 0}, abovePanel, menu, {88, 472, 340, 268});
        row("entry beside the panel", {130, 740, 0, 0}, {40, 0, 1326, 768}, menu,
            {40, 500, 340, 268});
        row("above the pointer", {700, 700, 0, 0}, bare, menu, {688, 420, 340, 268});
        row("other screen", {1400, 5, 24, 24}, {1366, 0, 800, 600}, menu, {1400, 29, 340, 268});
    }

    void menuStaysBesideItem()
    {
        QFETCH(QRect, item);
        QFETCH(QRect, available);
        QFETCH(QSize, wanted);
        const QRect placed = placeMenu(item, {0, 0, 1366, 768}, available, wanted);
        QTEST(placed, "menu");
        QVERIFY(available.contains(placed));
        QVERIFY(!placed.intersects(item));
    }

    void panelsTakeTheirStrip_data()
    {
        const auto row = table<QList<QRect>, QRect>("panels", "area");
        row("none", {}, {0, 0, 1000, 600});
        row("above and beside", {{300, 0, 400, 26}, {0, 26, 40, 574}}, {40, 26, 960, 574});
        row("below and right", {{0, 570, 1000, 30}, {980, 0, 20, 600}}, {0, 0, 980, 570});
        row("other screen", {{1000, 0, 800, 30}}, {0, 0, 1000, 600});
    }

    void panelsTakeTheirStrip()
    {
        QFETCH(QList<QRect>, panels);
        QTEST(areaWithoutPanels({0, 0, 1000, 600}, panels), "area");
    }

    void submenuStaysBesideMenu_data()
    {
        const auto row =
            table<QRect, int, Qt::LayoutDirection, QRect>("menu", "top", "direction", "submenu");
        const QSize size(300, 200);
        row("right", {100, 0, 340, 500}, 60, Qt::LeftToRight, {{440, 60}, size});
        row("turned left", {660, 0, 340, 500}, 60, Qt::LeftToRight, {{360, 60}, size});
        row("right to left", {660, 0, 340, 500}, 60, Qt::RightToLeft, {{360, 60}, size});
        row("turned right", {100, 0, 340, 500}, 60, Qt::RightToLeft, {{440, 60}, size});
        row("no room on either side", {280, 0, 500, 500}, 60, Qt::LeftToRight, {{0, 60}, size});
        row("at the end", {100, 0, 340, 600}, 580, Qt::LeftToRight, {{440, 400}, size});
    }

    void submenuStaysBesideMenu()
    {
        QFETCH(QRect, menu);
        QFETCH(int, top);
        QFETCH(Qt::LayoutDirection, direction);
        QTEST(placeSubmenu(menu, top, {0, 0, 1000, 600}, {300, 200}, direction), "submenu");
    }

    void pathLeadsToSubmenu()
    {
        constexpr QPoint exit(170, 79);
        SubmenuPath path;
        path.start(exit);
        for (const QRect submenu : {QRect(340, 0, 300, 400), QRect(-300, 0, 300, 400)}) {
            const int towards = submenu.x() > 0 ? 50 : -50;
            QVERIFY(path.contains(exit + QPoint(towards, 80), submenu));
            QVERIFY(!path.contains(exit + QPoint(0, 80), submenu));
            QVERIFY(!path.contains(exit + QPoint(-towards, 30), submenu));
        }
    }

    void oneClickIsAnsweredOnce()
    {
        using Verdict = ClickGuard::Verdict;
        constexpr QPoint item(10, 10);
        constexpr QPoint elsewhere(300, 300);
        ClickGuard guard;
        QCOMPARE(guard.onTrigger(false, item, 0ms), Verdict::open);
        guard.opened(item, 0ms);
        QCOMPARE(guard.onTrigger(true, item, 150ms), Verdict::ignore);
        QVERIFY(guard.repeatsOpening(item, 150ms));
        QVERIFY(!guard.repeatsOpening(elsewhere, 150ms));
        QCOMPARE(guard.onTrigger(true, item, 5s), Verdict::close);

        guard.closedByPress(item, 10s);
        QCOMPARE(guard.onTrigger(false, item, 10s + 10ms), Verdict::ignore);
        QCOMPARE(guard.onTrigger(false, item, 12s), Verdict::open);
        guard.closedByPress(elsewhere, 20s);
        QCOMPARE(guard.onTrigger(false, item, 20s + 10ms), Verdict::open);
    }
};

TARNWICK_TEST(MenuPlacementTest)

#include "menu_placement_test.moc"
