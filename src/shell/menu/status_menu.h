// SPDX-License-Identifier: MIT
#pragma once

#include "shell/menu/click_guard.h"
#include "shell/menu/key_window.h"

#include <QElapsedTimer>
#include <QWidget>

#include <memory>
#include <optional>

namespace tarnwick {

class HostedRow;
class HostingView;
class MenuBackdrop;
class MenuInput;
class RowColumn;

/// A menu of hosted views, popped up next to the status item; the submenu of a row is a status menu
/// too. It follows the size of its rows while it is open and never leaves the screen.
///
/// It is no QMenu, which expects plain entries and a click of its own: Qt 6.8 ignores the first
/// moves over a QMenu that opens before the program has seen the pointer (it measures how far that
/// has moved since its last known position, of which there is none after a click on another
/// program's panel), and a press over a parent menu's widget closes everything. What pointer and
/// keys do is decided by `MenuInput`, from the events of the windows.
class StatusMenu : public QWidget, public KeyWindow
{
    Q_OBJECT

public:
    /// With a parent it is a submenu, to be set on one of the parent's rows.
    explicit StatusMenu(StatusMenu* parent = nullptr);
    ~StatusMenu() override;

    /// Owns the view.
    HostedRow* addRow(HostingView* view);
    void addSeparator();
    [[nodiscard]] RowColumn& column() const { return *m_column; }

    [[nodiscard]] StatusMenu* parentMenu() const;
    /// The row that this is the submenu of; none for a menu without a parent.
    [[nodiscard]] HostedRow* parentRow() const;
    [[nodiscard]] StatusMenu* openSubmenu() const;
    /// What the open menu covers, in the coordinates that its events have. On Wayland these are not
    /// the screen's, and not those of geometry().
    [[nodiscard]] QRect area() const { return {mapToGlobal(QPoint()), size()}; }

    /// The row that is highlighted, or has the keyboard; none at first.
    [[nodiscard]] HostedRow* activeRow() const { return m_activeRow; }
    void setActiveRow(HostedRow* row);
    /// Makes the row the active one and opens its submenu in place of another row's; a row without
    /// one just closes that.
    void openSubmenuOf(HostedRow& row);
    /// Brings the row into view and opens its submenu once the menu is on the screen.
    void showSubmenuOf(HostedRow& row);
    void closeSubmenu();

    /// Answers a click on the status item at `anchor`, or at the pointer if the item's place is not
    /// known and the anchor's size is null: opens the menu, or closes it if it is open. The further
    /// events of a click that has been answered do nothing. The menu keeps off the panels, which
    /// are given like the anchor in logical coordinates of all screens.
    void popUpBeside(const QRect& anchor, const QList<QRect>& panels);
    /// Opens the menu as a window with a frame, for desktops without a status bar: it stays until
    /// the user closes it. The desktop places it unless told where. If it is open, it comes to the
    /// front.
    void openFreeStanding(std::optional<QPoint> position = {});
    [[nodiscard]] bool isFreeStanding() const { return m_isFreeStanding; }

    /// Answers a press outside of all menus: closes them, unless it belongs to the click that
    /// opened the menu.
    void pressedOutside(QPoint global);
    /// Closes the menu and all its submenus.
    void dismiss();

    void becomeKeyWindow() override;
    /// Draws the control that keys have led to as the one that has the keyboard.
    void showFocus();

Q_SIGNALS:
    void aboutToShow();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void useBackdrop();
    void closeOnFocusLoss();
    void openWhenInputIsFree(int attempts);
    void open();
    void occupy(const QRect& place);
    void openRequestedSubmenu();
    void fitToRows();
    [[nodiscard]] bool isOnBackdrop() const;
    [[nodiscard]] QRect placement() const;
    [[nodiscard]] const QScreen& shownScreen() const;
    [[nodiscard]] QRect availableArea() const;

    RowColumn* const m_column;
    HostedRow* m_activeRow = nullptr;
    HostedRow* m_requestedRow = nullptr;
    std::unique_ptr<MenuInput> m_input;
    std::unique_ptr<MenuBackdrop> m_backdrop; ///< where the desktop needs one

    bool m_isFreeStanding = false;
    QRect m_anchor;
    QList<QRect> m_panels;
    QRect m_available; ///< told by the backdrop
    ClickGuard m_clicks;
    QElapsedTimer m_clock;
};

} // namespace tarnwick
