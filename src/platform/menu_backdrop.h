// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRect>

#include <memory>

class QWindow;

namespace tarnwick {

/// Invisible windows in front of everything on all screens, panels included, for desktops that let
/// no program put a window beside the status item or know where the pointer is: a menu can be
/// placed on them. They get the clicks outside of the menu, and its keys.
class MenuBackdrop : public QObject
{
    Q_OBJECT

public:
    /// Shows the windows; `ready` tells when they are there.
    virtual void show() = 0;
    virtual void hide() = 0;

Q_SIGNALS:
    /// The window that the pointer is over, to be the menu's transient parent; where the pointer
    /// is, and what the panels leave of that screen, both in coordinates of all screens.
    void ready(QWindow& window, QPoint pointer, const QRect& available);
    /// A window other than these got the keyboard.
    void left();
};

/// None where the desktop does not need it, or cannot do it.
[[nodiscard]] std::unique_ptr<MenuBackdrop> makeMenuBackdrop();

} // namespace tarnwick
