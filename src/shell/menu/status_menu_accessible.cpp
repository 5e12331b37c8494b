// SPDX-License-Identifier: MIT
#include "shell/menu/status_menu_accessible.h"

#include "shell/menu/hosting_view.h"
#include "shell/menu/hosting_view_accessible.h"
#include "shell/menu/menu_entry_accessible.h"
#include "shell/menu/status_menu.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QApplication>

namespace tarnwick {

namespace {

/// The application with its open status menus.
class ApplicationAccessible : public QAccessibleApplication
{
public:
    int childCount() const override
    {
        return QAccessibleApplication::childCount() + static_cast<int>(openMenus().size());
    }

    QAccessibleInterface* child(int index) const override
    {
        const int windows = QAccessibleApplication::childCount();
        return index < windows
                   ? QAccessibleApplication::child(index)
                   : QAccessible::queryAccessibleInterface(openMenus().value(index - windows));
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto menu = openMenus().indexOf(child ? child->object() : nullptr);
        return menu < 0 ? QAccessibleApplication::indexOfChild(child)
                        : QAccessibleApplication::childCount() + static_cast<int>(menu);
    }

private:
    static QObjectList openMenus()
    {
        QObjectList menus;
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            const auto* const menu = qobject_cast<StatusMenu*>(window);
            if (menu && menu->isVisible() && menu->windowType() == Qt::Popup && !menu->parentMenu())
                menus.append(window);
        }
        return menus;
    }
};

/// A menu whose children are its hosted views and its plain entries.
class StatusMenuAccessible : public QAccessibleWidget
{
public:
    explicit StatusMenuAccessible(StatusMenu* menu)
        : QAccessibleWidget(menu, QAccessible::PopupMenu)
    {}

    int childCount() const override { return static_cast<int>(widget()->actions().size()); }

    QAccessibleInterface* child(int index) const override
    {
        QAction* const action = widget()->actions().value(index);
        QObject* const view = menu()->hostedView(action);
        return QAccessible::queryAccessibleInterface(view ? view : action);
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        QObject* const object = child ? child->object() : nullptr;
        const auto* const view = qobject_cast<HostingView*>(object);
        QAction* const action = view ? menu()->actionOf(*view) : qobject_cast<QAction*>(object);
        return static_cast<int>(widget()->actions().indexOf(action));
    }

    QAccessibleInterface* parent() const override
    {
        const StatusMenu* const above = menu()->parentMenu();
        QObject* const row = above ? above->hostedView(menu()->menuAction()) : nullptr;
        return row ? QAccessible::queryAccessibleInterface(row) : QAccessibleWidget::parent();
    }

private:
    StatusMenu* menu() const { return static_cast<StatusMenu*>(widget()); }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    if (object == qApp)
        return new ApplicationAccessible;
    if (auto* const menu = qobject_cast<StatusMenu*>(object))
        return new StatusMenuAccessible(menu);
    if (auto* const view = qobject_cast<HostingView*>(object))
        return new HostingViewAccessible(view);
    if (auto* const action = qobject_cast<QAction*>(object))
        return makeMenuEntryAccessible(action);
    return nullptr;
}

} // namespace

void installMenuAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace tarnwick
