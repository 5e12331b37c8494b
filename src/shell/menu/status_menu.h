// SPDX-License-Identifier: MIT
#pragma once

#include "shell/menu/click_guard.h"
#include "shell/menu/key_window.h"
#include "shell/menu/menu_scroller.h"

#include <QElapsedTimer>
#include <QMenu>
#include <QTimer>

#include <optional>

namespace tarnwick {

class HostedRow;
class HostingView;

/// A menu of hosted views, popped up by us next to the status item; submenus are status menus too,
/// set on a row's action. Differs from `QMenu` where that does not expect more than plain entries:
/// it follows the size of its rows while open, scrolls in one column, lets the pointer cross other
/// rows on the way to an open submenu, and passes presses and keys on to what is inside the rows.
class StatusMenu : public QMenu, public KeyWindow
{
    Q_OBJECT

public:
    explicit StatusMenu(QWidget* parent = nullptr);

    /// Owns the view. The action's text follows the view's.
    QAction* addHostedRow(HostingView* view);
    /// The view that shows an action of this menu; none for a plain action.
    [[nodiscard]] HostingView* hostedView(QAction* action) const;
    [[nodiscard]] QAction* actionOf(const HostingView& view) const;
    /// The open menu that this one is a submenu of.
    [[nodiscard]] StatusMenu* parentMenu() const;

    /// Answers a click on the status item at `anchor`, or at the pointer if the item's place is not
    /// known and the anchor's size is null: opens the menu, or closes it if it is open. The further
    /// events of a click that has been answered do nothing.
    void popUpBeside(const QRect& anchor);
    /// Closes the menu and all its submenus.
    void dismiss();

    void becomeKeyWindow() override;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void actionEvent(QActionEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] HostedRow* rowAt(QPoint position) const;
    [[nodiscard]] HostedRow* activeRow() const;
    [[nodiscard]] StatusMenu* openSubmenu() const;
    void closeSubmenu();
    [[nodiscard]] StatusMenu* topMenu();
    /// The nearest open menu above this one that reaches under a point of the screen.
    [[nodiscard]] StatusMenu* ancestorAt(QPoint global) const;

    void prepare();
    void layOutRows();
    void fit();
    [[nodiscard]] QSize fullSize() const;
    [[nodiscard]] QRect placement() const;

    [[nodiscard]] bool isOnTheWayToSubmenu(QPoint position);
    void followPointer();
    static void handPressTo(StatusMenu& ancestor, const QMouseEvent& press);
    [[nodiscard]] bool answersPressOutside(QPoint global);
    void step(bool forward, bool throughRows);
    void enter();
    void revealFocus();

    MenuScroller m_scroller{*this};
    std::optional<QRect> m_anchor;
    QSize m_room{QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};

    QPoint m_lastOnRow;
    QTimer m_pointerRests;

    ClickGuard m_clicks;
    QElapsedTimer m_clock;
};

} // namespace tarnwick
