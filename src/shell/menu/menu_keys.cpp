// SPDX-License-Identifier: MIT
#include "shell/menu/menu_keys.h"

#include "shell/menu/hosted_row.h"
#include "shell/menu/row_column.h"
#include "shell/menu/status_menu.h"

#include <QAbstractButton>
#include <QKeyEvent>

#include <algorithm>
#include <cstdlib>

namespace tarnwick {

namespace {

/// A place where the keyboard can be: a control, or a row as a whole.
struct Stop
{
    HostedRow* row;
    QWidget* control = nullptr;

    [[nodiscard]] QWidget& widget() const { return control ? *control : *row; }
    [[nodiscard]] QString name() const { return control ? control->accessibleName() : row->name(); }
};

enum class Through { Entries, AllControls };

QList<Stop> stopsOf(const StatusMenu& menu, Through through)
{
    QList<Stop> stops;
    for (HostedRow* const row : menu.column().rows()) {
        if (row->hasSubmenu())
            stops.append({.row = row});
        if (row->hasSubmenu() && through == Through::Entries)
            continue;
        for (QWidget* const control : row->focusWidgets())
            stops.append({.row = row, .control = control});
    }
    return stops;
}

QWidget* focusedControl(const StatusMenu& menu)
{
    QWidget* const control = menu.focusWidget();
    return control != &menu ? control : nullptr;
}

qsizetype currentIndex(const StatusMenu& menu, const QList<Stop>& stops)
{
    const QWidget* const control = focusedControl(menu);
    auto found = std::ranges::find_if(
        stops, [&](const Stop& stop) { return control && stop.control == control; });
    if (found == stops.end())
        found = std::ranges::find(stops, menu.activeRow(), &Stop::row);
    return found == stops.end() ? -1 : found - stops.begin();
}

void moveTo(StatusMenu& menu, const Stop& stop)
{
    menu.closeSubmenu();
    menu.setActiveRow(stop.row);
    (stop.control ? stop.control : &menu)->setFocus(Qt::TabFocusReason);
    menu.column().reveal(stop.widget());
}

void moveBy(StatusMenu& menu, int step, Through through = Through::Entries)
{
    const QList<Stop> stops = stopsOf(menu, through);
    if (stops.isEmpty())
        return;
    const qsizetype current = currentIndex(menu, stops);
    const qsizetype from = current < 0 && step < 0 ? 0 : current;
    moveTo(menu, stops[(from + step + stops.size()) % stops.size()]);
}

/// To the stop that is about as far from the current one as the menu is high.
void moveByPage(StatusMenu& menu, int direction)
{
    const QList<Stop> stops = stopsOf(menu, Through::Entries);
    if (stops.isEmpty())
        return;
    const auto middle = [&](const Stop& stop) {
        return menu.column().areaOf(stop.widget()).center().y();
    };
    const Stop& current = stops[std::max<qsizetype>(0, currentIndex(menu, stops))];
    const int wanted = middle(current) + direction * menu.column().height();
    moveTo(menu, *std::ranges::min_element(
                     stops, {}, [&](const Stop& stop) { return std::abs(middle(stop) - wanted); }));
}

void moveToEnd(StatusMenu& menu, bool first)
{
    const QList<Stop> stops = stopsOf(menu, Through::Entries);
    if (!stops.isEmpty())
        moveTo(menu, first ? stops.first() : stops.last());
}

void openSubmenu(StatusMenu& menu)
{
    HostedRow* const row = menu.activeRow();
    if (!row || !row->hasSubmenu())
        return;
    menu.openSubmenuOf(*row);
    moveToEnd(*row->submenu(), true);
}

void activate(StatusMenu& menu)
{
    if (auto* const button = qobject_cast<QAbstractButton*>(focusedControl(menu)))
        button->click();
    else
        openSubmenu(menu);
}

/// The arrow that points to where submenus open, and the other.
void moveSideways(StatusMenu& menu, bool forward)
{
    const HostedRow* const row = menu.activeRow();
    if (row && row->hasSubmenu() && forward)
        openSubmenu(menu);
    else if (menu.parentMenu() && !forward)
        menu.close();
    else if (row && !row->hasSubmenu() && !menu.parentMenu())
        moveBy(menu, forward ? 1 : -1);
}

} // namespace

void pressKey(StatusMenu& menu, const QKeyEvent& key)
{
    const bool isRightToLeft = menu.layoutDirection() == Qt::RightToLeft;
    switch (key.key()) {
    case Qt::Key_Down:
        return moveBy(menu, 1);
    case Qt::Key_Up:
        return moveBy(menu, -1);
    case Qt::Key_Tab:
        return moveBy(menu, 1, Through::AllControls);
    case Qt::Key_Backtab:
        return moveBy(menu, -1, Through::AllControls);
    case Qt::Key_Home:
        return moveToEnd(menu, true);
    case Qt::Key_End:
        return moveToEnd(menu, false);
    case Qt::Key_PageDown:
        return moveByPage(menu, 1);
    case Qt::Key_PageUp:
        return moveByPage(menu, -1);
    case Qt::Key_Right:
        return moveSideways(menu, !isRightToLeft);
    case Qt::Key_Left:
        return moveSideways(menu, isRightToLeft);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return activate(menu);
    case Qt::Key_Escape:
        menu.close();
        return;
    default:
        return;
    }
}

bool moveToName(StatusMenu& menu, const std::function<bool(const QString&)>& isWanted,
                SearchFrom from)
{
    QList<Stop> stops = stopsOf(menu, Through::Entries);
    // The buttons at the top of the outermost menu are not what is looked for.
    if (!menu.parentMenu())
        stops.removeIf([](const Stop& stop) { return stop.control; });
    const qsizetype step = from == SearchFrom::Next ? 1 : 0;
    const qsizetype start = std::max<qsizetype>(0, currentIndex(menu, stops) + step);
    for (qsizetype i = 0; i < stops.size(); ++i) {
        const Stop& stop = stops[(start + i) % stops.size()];
        if (isWanted(stop.name())) {
            moveTo(menu, stop);
            return true;
        }
    }
    return false;
}

} // namespace tarnwick
