// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

class QAction;

namespace tarnwick {

class HostingView;
class StatusMenu;

/// A hosted view as assistive technology sees it: a menu item named by the view's text, or a plain
/// group where the menu entry opens nothing; in it the widgets of the content and the submenu.
class HostingViewAccessible : public QAccessibleWidget
{
public:
    explicit HostingViewAccessible(HostingView* view);

    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

private:
    [[nodiscard]] StatusMenu* owner() const;
    [[nodiscard]] QAction* action() const;
    [[nodiscard]] QObject* submenu() const;
};

} // namespace tarnwick
