// SPDX-License-Identifier: MIT
#include "shell/menu/hosting_view_accessible.h"

#include "shell/menu/hosting_view.h"
#include "shell/menu/status_menu.h"

namespace tarnwick {

HostingViewAccessible::HostingViewAccessible(HostingView* view)
    : QAccessibleWidget(view)
{}

QAccessible::Role HostingViewAccessible::role() const
{
    return submenu() ? QAccessible::MenuItem : QAccessible::Grouping;
}

QAccessible::State HostingViewAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = true;
    if (const StatusMenu* const menu = owner()) {
        state.hasPopup = submenu() != nullptr;
        state.focused = menu->hasFocus() && action() && menu->activeAction() == action();
        state.offscreen = !menu->rect().intersects(widget()->geometry());
    }
    return state;
}

QString HostingViewAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? static_cast<HostingView*>(widget())->text()
                                     : QAccessibleWidget::text(kind);
}

int HostingViewAccessible::childCount() const
{
    return QAccessibleWidget::childCount() + (submenu() ? 1 : 0);
}

QAccessibleInterface* HostingViewAccessible::child(int index) const
{
    return index == QAccessibleWidget::childCount()
               ? QAccessible::queryAccessibleInterface(submenu())
               : QAccessibleWidget::child(index);
}

int HostingViewAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    return child && submenu() && child->object() == submenu()
               ? QAccessibleWidget::childCount()
               : QAccessibleWidget::indexOfChild(child);
}

QStringList HostingViewAccessible::actionNames() const
{
    return submenu() ? QStringList(showMenuAction()) : QStringList();
}

void HostingViewAccessible::doAction(const QString& actionName)
{
    if (actionName == showMenuAction() && submenu())
        owner()->setActiveAction(action());
}

StatusMenu* HostingViewAccessible::owner() const
{
    return qobject_cast<StatusMenu*>(widget()->parentWidget());
}

QAction* HostingViewAccessible::action() const
{
    return owner() ? owner()->actionOf(*static_cast<HostingView*>(widget())) : nullptr;
}

QObject* HostingViewAccessible::submenu() const
{
    const QAction* const entry = action();
    return entry ? entry->menu() : nullptr;
}

} // namespace tarnwick
