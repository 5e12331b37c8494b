// SPDX-License-Identifier: MIT
#include "platform/freedesktop/panel_rects.h"
#include "support/test_registry.h"

using namespace tarnwick::test;

class PanelRectsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panelsAreFound_data()
    {
        const auto row =
            table<QList<DockWindow>, QList<Monitor>, QList<QRect>>("docks", "monitors", "panels");
        const QRect hd(0, 0, 1920, 1080);
        const QRect beside(1920, 0, 1280, 1024);
        const QRect top(0, 0, 1920, 26);
        const QRect left(1920, 0, 48, 1024);
        row("two monitors", {{top, {top}}, {left}}, {{hd, hd}, {beside, beside}}, {top, left});
        row("across both", {{{0, 0, 3200, 26}}}, {{hd, hd}, {beside, beside}},
            {top, {1920, 0, 1280, 26}});
        row("upper first", {{{0, 1040, 1920, 40}}, {top}}, {{hd, hd}}, {top, {0, 1040, 1920, 40}});
        row("hidden", {{{-9999, -9999, 1920, 26}}, {{0, 1077, 1920, 40}}}, {{hd, hd}}, {});
        row("transparent but for its strut", {{{0, 800, 1920, 280}, {{}, {500, 1032, 900, 48}}}},
            {{hd, hd}}, {{500, 1032, 900, 48}});
        row("transparent all over", {{hd}}, {{hd, hd}}, {});
        row("scaled", {{{0, 0, 1920, 39}}, {{3060, 0, 60, 900}}},
            {{{0, 0, 1280, 720}, {0, 0, 1280, 720}, 1.5}, {{1920, 0, 800, 600}, {}, 1.5}},
            {{0, 0, 1280, 26}, {2680, 0, 40, 600}});
        row("no window", {}, {{hd, {0, 30, 1920, 1050}}}, {{0, 0, 1920, 30}});
    }

    void panelsAreFound()
    {
        QFETCH(QList<DockWindow>, docks);
        QFETCH(QList<Monitor>, monitors);
        QTEST(panelRects(docks, monitors), "panels");
    }

    void colorIsThatBehindTheItem_data()
    {
        const auto row = table<QRect, QList<QRect>, QRect>("item", "panels", "area");
        const QRect upper(0, 0, 800, 26);
        const QRect lower(0, 574, 800, 26);
        const QRect item(700, 2, 22, 22);
        row("item", item, {lower, upper}, item);
        row("hidden panel", item, {lower}, {});
        row("click", {700, 580, 0, 0}, {upper, lower}, lower);
        row("nothing known", {}, {upper, lower}, upper);
    }

    void colorIsThatBehindTheItem()
    {
        QFETCH(QRect, item);
        QFETCH(QList<QRect>, panels);
        QTEST(areaBehind(item, panels), "area");
    }
};

TARNWICK_TEST(PanelRectsTest)

#include "panel_rects_test.moc"
