// SPDX-License-Identifier: MIT
#include "shell/menu/status_menu.h"

#include "shell/menu/hosted_row.h"
#include "shell/menu/hosting_view.h"
#include "shell/menu/menu_placement.h"
#include "shell/menu/menu_style.h"

#include <QActionEvent>
#include <QApplication>
#include <QPainter>
#include <QScreen>

#include <algorithm>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;

/// A pointer that stops on another row wants that row, even on the way to the submenu.
constexpr auto restTime = 200ms;

constexpr qreal highlightStrength = 0.25;

bool isWayland()
{
    return QGuiApplication::platformName().startsWith(u"wayland");
}

} // namespace

StatusMenu::StatusMenu(QWidget* parent)
    : QMenu(parent)
{
    auto* const menuStyle = new MenuStyle;
    menuStyle->setParent(this);
    setStyle(menuStyle);

    m_pointerRests.setSingleShot(true);
    m_pointerRests.setInterval(restTime);
    m_clock.start();
    connect(&m_pointerRests, &QTimer::timeout, this, &StatusMenu::followPointer);
    connect(&m_scroller, &MenuScroller::scrolled, this, &StatusMenu::layOutRows);
    connect(this, &QMenu::aboutToShow, this, &StatusMenu::prepare);
}

QAction* StatusMenu::addHostedRow(HostingView* view)
{
    auto* const row = new HostedRow(view, this);
    connect(row, &HostedRow::clicked, this, [this, row] {
        if (row->menu())
            setActiveAction(row);
    });
    addAction(row);
    return row;
}

HostingView* StatusMenu::hostedView(QAction* action) const
{
    auto* const row = qobject_cast<HostedRow*>(action);
    return row ? &row->view() : nullptr;
}

QAction* StatusMenu::actionOf(const HostingView& view) const
{
    const QList<QAction*> all = actions();
    const auto found = std::ranges::find_if(
        all, [this, &view](QAction* action) { return hostedView(action) == &view; });
    return found == all.end() ? nullptr : *found;
}

void StatusMenu::popUpBeside(const QRect& anchor)
{
    const QPoint pointer = QCursor::pos();
    const ClickGuard::Time now{m_clock.elapsed()};
    const auto verdict = m_clicks.onTrigger(isVisible(), pointer, now);
    if (verdict == ClickGuard::Verdict::close)
        dismiss();
    if (verdict != ClickGuard::Verdict::open)
        return;

    m_clicks.opened(pointer, now);
    m_anchor = anchor.isEmpty() ? QRect(pointer, QSize()) : anchor;
    // A popup without a parent window fails there; a window that is active does as well.
    if (isWayland() && windowType() == Qt::Popup)
        setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    prepare();
    popup(placement().topLeft());
}

void StatusMenu::dismiss()
{
    closeSubmenu();
    close();
}

void StatusMenu::becomeKeyWindow()
{
    if (windowType() != Qt::Popup)
        activateWindow();
    setFocus(Qt::PopupFocusReason);
}

QSize StatusMenu::sizeHint() const
{
    return fullSize().boundedTo(m_room);
}

bool StatusMenu::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::LayoutRequest:
        // A row's size may have changed.
        if (isVisible())
            fit();
        return true;
    case QEvent::WindowDeactivate:
        if (windowType() != Qt::Popup && !QApplication::activePopupWidget()) {
            m_clicks.closedByPress(QCursor::pos(), ClickGuard::Time(m_clock.elapsed()));
            close();
        }
        break;
    default:
        break;
    }
    return QMenu::event(event);
}

void StatusMenu::actionEvent(QActionEvent* event)
{
    // A hosted view shows its text itself; QMenu would lay out and repaint everything.
    const HostingView* const view = hostedView(event->action());
    if (view && event->type() == QEvent::ActionChanged &&
        event->action()->isVisible() != view->isHidden())
        return;
    QMenu::actionEvent(event);
    if (isVisible())
        fit();
}

void StatusMenu::hideEvent(QHideEvent* event)
{
    m_pointerRests.stop();
    m_scroller.stop();
    QMenu::hideEvent(event);
}

void StatusMenu::paintEvent(QPaintEvent* event)
{
    QMenu::paintEvent(event);
    const HostedRow* const row = activeRow();
    if (!row || !row->menu())
        return;
    QColor highlight = palette().color(QPalette::Highlight);
    highlight.setAlphaF(highlightStrength);
    QPainter(this).fillRect(row->view().geometry(), highlight);
}

void StatusMenu::resizeEvent(QResizeEvent* event)
{
    QMenu::resizeEvent(event);
    m_scroller.fit(fullSize().height());
}

// Layout

void StatusMenu::prepare()
{
    for (QAction* const action : actions()) {
        if (HostingView* const view = hostedView(action))
            Q_EMIT view->aboutToBeShown();
    }
    m_scroller.scrollTo(0);
    layOutRows();
    m_room = {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
    m_room = placement().size();
}

void StatusMenu::layOutRows()
{
    // QMenu offers no other way to do just this: a resize makes it look at its rows again.
    QResizeEvent sameSize(size(), size());
    QMenu::event(&sameSize);
}

void StatusMenu::fit()
{
    layOutRows();
    const QRect place = placement();
    m_room = place.size();
    if (place != geometry())
        setGeometry(place);
    m_scroller.fit(fullSize().height());
}

QSize StatusMenu::fullSize() const
{
    return QMenu::sizeHint() + QSize(0, m_scroller.offset());
}

QRect StatusMenu::placement() const
{
    if (!m_anchor)
        return keptWithin(screen()->availableGeometry(), QRect(pos(), fullSize()));
    const QScreen* const at = QGuiApplication::screenAt(m_anchor->center());
    return placeMenu(*m_anchor, (at ? at : screen())->availableGeometry(), fullSize());
}

// The menus around this one

HostedRow* StatusMenu::rowAt(QPoint position) const
{
    return qobject_cast<HostedRow*>(actionAt(position));
}

HostedRow* StatusMenu::activeRow() const
{
    return qobject_cast<HostedRow*>(activeAction());
}

StatusMenu* StatusMenu::openSubmenu() const
{
    // Not just the active action's: another row may be about to take over.
    for (const QAction* const action : actions()) {
        auto* const submenu = qobject_cast<StatusMenu*>(action->menu());
        if (submenu && submenu->isVisible())
            return submenu;
    }
    return nullptr;
}

void StatusMenu::closeSubmenu()
{
    if (StatusMenu* const submenu = openSubmenu())
        submenu->close();
}

StatusMenu* StatusMenu::parentMenu() const
{
    for (QObject* const object : menuAction()->associatedObjects()) {
        auto* const menu = qobject_cast<StatusMenu*>(object);
        if (menu && menu->isVisible())
            return menu;
    }
    return nullptr;
}

StatusMenu* StatusMenu::topMenu()
{
    StatusMenu* menu = this;
    while (StatusMenu* const parent = menu->parentMenu())
        menu = parent;
    return menu;
}

StatusMenu* StatusMenu::ancestorAt(QPoint global) const
{
    StatusMenu* menu = parentMenu();
    while (menu && !menu->rect().contains(menu->mapFromGlobal(global)))
        menu = menu->parentMenu();
    return menu;
}

} // namespace tarnwick
