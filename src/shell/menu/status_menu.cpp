// SPDX-License-Identifier: MIT
#include "shell/menu/status_menu.h"

#include "platform/input_grab.h"
#include "platform/menu_backdrop.h"
#include "platform/window_activation.h"
#include "shell/menu/hosted_row.h"
#include "shell/menu/hosting_view.h"
#include "shell/menu/menu_input.h"
#include "shell/menu/menu_placement.h"
#include "shell/menu/row_column.h"
#include "shell/menu/scroll_arrow.h"
#include "views/colors.h"

#include <QAccessible>
#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QShowEvent>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;

constexpr int frameWidth = 1;
constexpr int innerMargin = 6;

/// A panel may hold the input for a moment after a click in a menu of its own.
constexpr auto grabInterval = 50ms;
constexpr int grabAttempts = 20;

/// Submenus of a plain window are placed at it like tooltips, which hold no input either.
Qt::WindowFlags flagsFor(const StatusMenu* parent)
{
    if (popupsHoldInput())
        return Qt::Popup;
    return Qt::FramelessWindowHint | (parent ? Qt::ToolTip : Qt::Window);
}

} // namespace

StatusMenu::StatusMenu(StatusMenu* parent)
    : QWidget(parent, flagsFor(parent))
    , m_column(new RowColumn(this))
{
    setAttribute(Qt::WA_X11NetWmWindowTypePopupMenu);
    setAttribute(Qt::WA_OpaquePaintEvent);
    constexpr int margin = frameWidth + innerMargin;
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_column);
    m_clock.start();
    if (!parent) {
        m_input = std::make_unique<MenuInput>(*this);
        useBackdrop();
        closeOnFocusLoss();
    }

    connect(m_column, &RowColumn::sizeHintChanged, this, [this] {
        if (isVisible())
            fitToRows();
    });
}

StatusMenu::~StatusMenu() = default;

HostedRow* StatusMenu::addRow(HostingView* view)
{
    auto* const row = new HostedRow(view);
    connect(row, &HostedRow::clicked, this, [this, row] {
        if (row->hasSubmenu())
            openSubmenuOf(*row);
    });
    m_column->addRow(row);
    return row;
}

void StatusMenu::addSeparator()
{
    m_column->addSeparator();
}

StatusMenu* StatusMenu::parentMenu() const
{
    return qobject_cast<StatusMenu*>(parentWidget());
}

HostedRow* StatusMenu::parentRow() const
{
    if (!parentMenu())
        return nullptr;
    const auto& rows = parentMenu()->column().rows();
    const auto found = std::ranges::find(rows, this, &HostedRow::submenu);
    return found == rows.end() ? nullptr : *found;
}

StatusMenu* StatusMenu::openSubmenu() const
{
    for (const HostedRow* const row : m_column->rows()) {
        if (row->submenu() && row->submenu()->isVisible())
            return row->submenu();
    }
    return nullptr;
}

void StatusMenu::setActiveRow(HostedRow* row)
{
    HostedRow* const before = std::exchange(m_activeRow, row);
    if (before == row)
        return;
    if (before)
        before->setActive(false);
    if (!row)
        return;
    row->setActive(true);
    QAccessibleEvent focused(row, QAccessible::Focus);
    QAccessible::updateAccessibility(&focused);
}

void StatusMenu::openSubmenuOf(HostedRow& row)
{
    setActiveRow(&row);
    StatusMenu* const wanted = row.hasSubmenu() ? &row.ensureSubmenu() : nullptr;
    StatusMenu* const current = openSubmenu();
    if (wanted == current)
        return;
    if (current)
        current->hide();
    if (wanted)
        wanted->open();
}

void StatusMenu::showSubmenuOf(HostedRow& row)
{
    m_requestedRow = &row;
    update();
}

void StatusMenu::closeSubmenu()
{
    if (StatusMenu* const submenu = openSubmenu())
        submenu->hide();
}

void StatusMenu::popUpBeside(const QRect& anchor, const QList<QRect>& panels)
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
    m_panels = panels;
    if (m_backdrop)
        m_backdrop->show();
    else
        openWhenInputIsFree(grabAttempts);
}

void StatusMenu::openFreeStanding(std::optional<QPoint> position)
{
    if (!isVisible()) {
        m_isFreeStanding = true;
        setAttribute(Qt::WA_X11NetWmWindowTypePopupMenu, false);
        setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                       Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint);
        setWindowTitle(QCoreApplication::applicationName());
        if (position)
            move(*position);
        Q_EMIT aboutToShow();
        open();
    }
    bringToFront(*this);
}

void StatusMenu::pressedOutside(QPoint global)
{
    if (m_isFreeStanding)
        return closeSubmenu();
    const ClickGuard::Time now{m_clock.elapsed()};
    if (m_clicks.repeatsOpening(global, now))
        return;
    m_clicks.closedByPress(global, now);
    dismiss();
}

void StatusMenu::dismiss()
{
    closeSubmenu();
    hide(); // unlike close(), keeps the native window for the next opening
}

void StatusMenu::becomeKeyWindow()
{
    if (windowType() == Qt::Window)
        bringToFront(*this);
    setFocus(Qt::PopupFocusReason);
}

void StatusMenu::showFocus()
{
    // Keys come by way of the backdrop or the menu. Qt's newer call asks the desktop, which has
    // nothing to give.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    if (!popupsHoldInput())
        QApplication::setActiveWindow(this);
    QT_WARNING_POP
}

void StatusMenu::closeOnFocusLoss()
{
    // What is the active window to Qt can be a submenu, see showFocus(). A popup gets the focus for
    // as long as it is open.
    connect(qApp, &QGuiApplication::focusWindowChanged, this,
            [this, hadFocus = false](const QWindow* focused) mutable {
                if (QApplication::activePopupWidget())
                    return;
                const bool hasFocus = focused && focused == windowHandle();
                const bool lostFocus = std::exchange(hadFocus, hasFocus) && !hasFocus;
                if (lostFocus && isVisible() && windowType() == Qt::Window)
                    pressedOutside(QCursor::pos());
            });
}

void StatusMenu::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // A spontaneous event only uncovers the window.
    if (event->spontaneous())
        return;
    for (const HostedRow* const row : m_column->rows())
        row->view().viewDidMoveToWindow();
}

void StatusMenu::hideEvent(QHideEvent* event)
{
    closeSubmenu();
    setActiveRow(nullptr);
    m_column->stopScrolling();
    // A window that was only minimised comes back without being opened.
    if (m_input && !event->spontaneous())
        m_input->stop();
    if (m_backdrop)
        m_backdrop->hide();
    QWidget::hideEvent(event);
}

void StatusMenu::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    drawMenuBackground(painter, *this);
    painter.setPen(separatorColor(palette()));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    // On Wayland a submenu needs a menu that is on the screen.
    if (m_requestedRow)
        QMetaObject::invokeMethod(this, &StatusMenu::openRequestedSubmenu, Qt::QueuedConnection);
}

void StatusMenu::openRequestedSubmenu()
{
    HostedRow* const row = std::exchange(m_requestedRow, nullptr);
    if (!row || !isVisible())
        return;
    m_column->reveal(*row);
    openSubmenuOf(*row);
}

void StatusMenu::useBackdrop()
{
    m_backdrop = makeMenuBackdrop();
    if (!m_backdrop)
        return;
    setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
    connect(m_backdrop.get(), &MenuBackdrop::left, this, &StatusMenu::dismiss);
    connect(m_backdrop.get(), &MenuBackdrop::ready, this,
            [this](QWindow& window, QPoint pointer, const QRect& available) {
                m_anchor = QRect(pointer, QSize());
                m_available = available;
                m_clicks.opened(pointer, ClickGuard::Time(m_clock.elapsed()));
                create();
                windowHandle()->setTransientParent(&window);
                openWhenInputIsFree(grabAttempts);
            });
}

void StatusMenu::openWhenInputIsFree(int attempts)
{
    if (attempts == 0)
        m_requestedRow = nullptr;
    if (isVisible() || attempts == 0)
        return;
    if (!inputIsFree()) {
        QTimer::singleShot(grabInterval, this,
                           [this, attempts] { openWhenInputIsFree(attempts - 1); });
        return;
    }
    Q_EMIT aboutToShow();
    open();
    becomeKeyWindow();
}

void StatusMenu::open()
{
    for (const HostedRow* const row : m_column->rows())
        Q_EMIT row->view().aboutToBeShown();
    m_column->scrollToTop();
    setFocus(Qt::PopupFocusReason);
    occupy(placement());
    layout()->activate();
    m_column->prepareToShow();
    if (m_input)
        m_input->start();
    show();
}

void StatusMenu::occupy(const QRect& place)
{
    // Only a window of one size is left alone by tiling window managers.
    if (windowType() != Qt::Popup)
        setFixedSize(place.size());
    if (!m_isFreeStanding)
        setGeometry(place);
}

void StatusMenu::fitToRows()
{
    const QRect place = placement();
    if (place != geometry())
        occupy(place);
    if (StatusMenu* const submenu = openSubmenu())
        submenu->fitToRows();
}

bool StatusMenu::isOnBackdrop() const
{
    if (const StatusMenu* const parent = parentMenu())
        return parent->isOnBackdrop();
    return m_backdrop && !m_isFreeStanding;
}

QRect StatusMenu::placement() const
{
    const QMargins margins = layout()->contentsMargins();
    const QSize wanted = m_column->sizeHint().grownBy(margins);
    if (const HostedRow* const row = parentRow()) {
        const int top = row->mapToGlobal(QPoint()).y() - margins.top();
        return placeSubmenu(parentMenu()->area(), top, availableArea(), wanted, layoutDirection());
    }
    if (!windowsCanBePlaced() && !isOnBackdrop())
        return QStyle::alignedRect(layoutDirection(), Qt::AlignCenter,
                                   wanted.boundedTo(availableArea().size()), availableArea());
    return placeMenu(m_anchor, shownScreen().geometry(), availableArea(), wanted);
}

const QScreen& StatusMenu::shownScreen() const
{
    const QScreen* const at = QGuiApplication::screenAt(m_anchor.center());
    return at ? *at : *screen();
}

QRect StatusMenu::availableArea() const
{
    if (const StatusMenu* const parent = parentMenu())
        return parent->availableArea();
    if (!windowsCanBePlaced() && !isOnBackdrop()) {
        QRect available = screen()->availableGeometry();
        // On Wayland every window counts as in the upper left corner of the first screen.
        if (isVisible() && !available.intersects(area()))
            available.moveTopLeft(area().topLeft());
        return available;
    }
    if (isOnBackdrop())
        return m_available;
    const QScreen& shown = shownScreen();
    // Qt 6.11 does not scale the position of the available geometry.
    return m_panels.isEmpty() ? shown.availableGeometry()
                              : areaWithoutPanels(shown.geometry(), m_panels);
}

} // namespace tarnwick
