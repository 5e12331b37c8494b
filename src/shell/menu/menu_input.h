// SPDX-License-Identifier: MIT
#pragma once

#include "shell/menu/submenu_path.h"
#include "shell/menu/type_ahead.h"

#include <QObject>
#include <QTimer>

#include <chrono>

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;
class QWindow;

namespace tarnwick {

class HostedRow;
class StatusMenu;

/// What the pointer and the keyboard do while a status menu is open, for the menu and its submenus.
///
/// It looks at the events of the program's windows before Qt gives them to a widget, and at nothing
/// but their position on the screen: which window gets an event, and how often, depends on the
/// version of Qt, on the grabs of popups and on the display server. A press over another menu than
/// the one Qt would give it to reaches the widget there, and keys go to the innermost menu.
class MenuInput : public QObject
{
    Q_OBJECT

public:
    /// `menu` is the outermost menu and outlives it.
    explicit MenuInput(StatusMenu& menu);

    /// The menu opens.
    void start();
    /// The menu has closed.
    void stop();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool isOfMenu(const QWindow& window) const;
    /// The open menu under a point of the screen; none outside.
    [[nodiscard]] StatusMenu* menuAt(QPoint global) const;
    [[nodiscard]] StatusMenu& innermostMenu() const;

    void pointerMoved(QPoint global);
    void hover(StatusMenu& menu, QPoint global);
    void openLater(StatusMenu& menu, HostedRow& row, std::chrono::milliseconds delay);
    [[nodiscard]] bool press(const QWindow& window, QMouseEvent& event);
    void press(QKeyEvent& event);
    void wheel(QWheelEvent& event);

    StatusMenu& m_menu;
    QPoint m_pointer;
    SubmenuPath m_path;
    TypeAhead m_typeAhead;

    /// The row whose submenu opens when the pointer has rested.
    HostedRow* m_awaited = nullptr;
    StatusMenu* m_awaitedMenu = nullptr;
    QTimer m_rest;
};

} // namespace tarnwick
