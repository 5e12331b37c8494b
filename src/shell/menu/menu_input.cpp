// SPDX-License-Identifier: MIT
#include "shell/menu/menu_input.h"

#include "shell/menu/hosted_row.h"
#include "shell/menu/menu_keys.h"
#include "shell/menu/row_column.h"
#include "shell/menu/status_menu.h"
#include "views/forwarded_press.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QWheelEvent>
#include <QWindow>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;

/// A pointer that stops on another row wants that row, even on the way to the submenu.
constexpr auto restTime = 200ms;

/// The widget that Qt gives a mouse event of the window to.
const QWidget* receiverOf(const QWindow& window)
{
    if (const QWidget* const popup = QApplication::activePopupWidget())
        return popup;
    for (const QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() == &window)
            return widget;
    }
    return nullptr;
}

std::chrono::milliseconds openDelay(const StatusMenu& menu)
{
    return std::chrono::milliseconds(
        menu.style()->styleHint(QStyle::SH_Menu_SubMenuPopupDelay, nullptr, &menu));
}

} // namespace

MenuInput::MenuInput(StatusMenu& menu)
    : m_menu(menu)
    , m_typeAhead(menu)
{
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, [this] {
        if (m_awaitedMenu->isVisible())
            m_awaitedMenu->openSubmenuOf(*m_awaited);
    });
}

void MenuInput::start()
{
    // A pointer that is where the menu opens, or is taken there by a scroll, has not moved.
    m_pointer = QCursor::pos();
    qApp->installEventFilter(this);
}

void MenuInput::stop()
{
    m_rest.stop();
    m_typeAhead.clear();
    qApp->removeEventFilter(this);
}

bool MenuInput::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWindowType())
        return false;
    const auto& window = static_cast<const QWindow&>(*watched);
    if (m_menu.isFreeStanding() && !isOfMenu(window))
        return false;
    switch (event->type()) {
    case QEvent::Enter:
        pointerMoved(static_cast<QEnterEvent*>(event)->globalPosition().toPoint());
        return false;
    case QEvent::MouseMove:
        pointerMoved(static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return press(window, *static_cast<QMouseEvent*>(event));
    case QEvent::Wheel:
        wheel(*static_cast<QWheelEvent*>(event));
        return true;
    case QEvent::KeyPress:
        press(*static_cast<QKeyEvent*>(event));
        return true;
    default:
        return false;
    }
}

bool MenuInput::isOfMenu(const QWindow& window) const
{
    const StatusMenu* menu = &innermostMenu();
    while (menu && menu->windowHandle() != &window)
        menu = menu->parentMenu();
    return menu;
}

StatusMenu* MenuInput::menuAt(QPoint global) const
{
    StatusMenu* menu = &innermostMenu();
    while (menu && !menu->area().contains(global))
        menu = menu->parentMenu();
    return menu;
}

StatusMenu& MenuInput::innermostMenu() const
{
    StatusMenu* menu = &m_menu;
    while (StatusMenu* const submenu = menu->openSubmenu())
        menu = submenu;
    return *menu;
}

void MenuInput::pointerMoved(QPoint global)
{
    if (global == m_pointer)
        return;
    m_pointer = global;
    if (StatusMenu* const menu = menuAt(global)) {
        hover(*menu, global);
        return;
    }
    m_rest.stop();
    StatusMenu& innermost = innermostMenu();
    innermost.column().stopScrolling();
    innermost.setActiveRow(nullptr);
}

void MenuInput::hover(StatusMenu& menu, QPoint global)
{
    if (m_awaitedMenu != &menu)
        m_rest.stop(); // the pointer has reached the submenu
    for (StatusMenu* above = menu.parentMenu(); above; above = above->parentMenu()) {
        above->column().stopScrolling();
        above->setActiveRow(above->openSubmenu()->parentRow());
    }
    const QPoint position = menu.column().mapFromGlobal(global);
    if (menu.column().hoverArrow(position)) {
        m_rest.stop();
        menu.closeSubmenu();
        return;
    }
    HostedRow* const row = menu.column().rowAt(position);
    if (!row)
        return;
    StatusMenu* const submenu = menu.openSubmenu();
    if (submenu && row->submenu() == submenu) {
        m_path.start(global);
        m_rest.stop();
        menu.setActiveRow(row);
    } else if (submenu && m_path.contains(global, submenu->area())) {
        openLater(menu, *row, restTime);
    } else {
        if (menu.activeRow() != row)
            menu.setFocus(Qt::MouseFocusReason);
        menu.setActiveRow(row);
        const bool isAwaited = m_rest.isActive() && m_awaited == row;
        if ((submenu || row->hasSubmenu()) && !isAwaited)
            openLater(menu, *row, openDelay(menu));
    }
}

void MenuInput::openLater(StatusMenu& menu, HostedRow& row, std::chrono::milliseconds delay)
{
    m_awaitedMenu = &menu;
    m_awaited = &row;
    m_rest.start(delay);
}

bool MenuInput::press(const QWindow& window, QMouseEvent& event)
{
    const QPoint global = event.globalPosition().toPoint();
    StatusMenu* const menu = menuAt(global);
    if (!menu) {
        event.accept();
        m_menu.pressedOutside(global);
        return true;
    }
    const HostedRow* const row = menu->column().rowAt(menu->column().mapFromGlobal(global));
    const StatusMenu* const submenu = menu->openSubmenu();
    const bool isElsewhere = receiverOf(window) != menu;
    if (submenu && row && row->submenu() != submenu)
        menu->closeSubmenu();
    if (!isElsewhere)
        return false;
    if (QWidget* const target = menu->childAt(menu->mapFromGlobal(global)))
        new ForwardedPress(*target, event); // owned by the target
    event.accept();
    return true;
}

void MenuInput::press(QKeyEvent& event)
{
    m_rest.stop();
    StatusMenu& menu = innermostMenu();
    if (!m_typeAhead.press(menu, event))
        pressKey(menu, event);
    if (m_menu.isVisible())
        innermostMenu().showFocus();
    event.accept();
}

void MenuInput::wheel(QWheelEvent& event)
{
    const QPoint global = event.globalPosition().toPoint();
    StatusMenu* const menu = menuAt(global);
    event.accept();
    if (!menu)
        return;
    m_rest.stop();
    QWidget& viewport = *menu->column().viewport();
    QWheelEvent handed(viewport.mapFromGlobal(event.globalPosition()), event.globalPosition(),
                       event.pixelDelta(), event.angleDelta(), event.buttons(), event.modifiers(),
                       event.phase(), event.inverted());
    const QRect before = menu->column().widget()->geometry();
    QCoreApplication::sendEvent(&viewport, &handed);
    if (menu->column().widget()->geometry() != before) {
        menu->closeSubmenu();
        hover(*menu, global);
    }
}

} // namespace tarnwick
