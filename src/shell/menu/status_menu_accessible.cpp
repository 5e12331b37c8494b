// SPDX-License-Identifier: MIT
#include "shell/menu/status_menu_accessible.h"

#include "shell/menu/hosted_row.h"
#include "shell/menu/hosting_view.h"
#include "shell/menu/row_column.h"
#include "shell/menu/status_menu.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QApplication>

namespace tarnwick {

namespace {

QAccessibleInterface* interfaceOf(QObject* object)
{
    return object ? QAccessible::queryAccessibleInterface(object) : nullptr;
}

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
        return index < windows ? QAccessibleApplication::child(index)
                               : interfaceOf(openMenus().value(index - windows));
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

/// A menu whose children are its rows.
class StatusMenuAccessible : public QAccessibleWidget
{
public:
    explicit StatusMenuAccessible(StatusMenu* menu)
        : QAccessibleWidget(menu, QAccessible::PopupMenu)
    {}

    int childCount() const override { return static_cast<int>(rows().size()); }
    QAccessibleInterface* child(int index) const override
    {
        return interfaceOf(rows().value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return static_cast<int>(rows().indexOf(child ? child->object() : nullptr));
    }
    QAccessibleInterface* parent() const override
    {
        HostedRow* const row = menu()->parentRow();
        return row ? interfaceOf(row) : QAccessibleWidget::parent();
    }

private:
    StatusMenu* menu() const { return static_cast<StatusMenu*>(widget()); }
    const QList<HostedRow*>& rows() const { return menu()->column().rows(); }
};

/// A menu item named by the view's text, or a plain group where the row opens nothing; in it the
/// widgets of the view and, once it was opened, the submenu.
class HostedRowAccessible : public QAccessibleWidget
{
public:
    explicit HostedRowAccessible(HostedRow* row)
        : QAccessibleWidget(row, row->hasSubmenu() ? QAccessible::MenuItem : QAccessible::Grouping)
    {}

    QAccessible::Role role() const override
    {
        return row()->hasSubmenu() ? QAccessible::MenuItem : QAccessible::Grouping;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const QRect area = menu()->column().areaOf(*row());
        state.focusable = true;
        state.hasPopup = row()->hasSubmenu();
        state.focused = menu()->hasFocus() && row()->isActive();
        state.invisible = !menu()->isVisible(); // a row out of view is hidden
        state.offscreen = !menu()->column().rect().intersects(area);
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Name:
            return row()->view().text();
        case QAccessible::Description:
            return row()->view().description();
        default:
            return QAccessibleWidget::text(kind);
        }
    }

    QAccessibleInterface* parent() const override { return interfaceOf(menu()); }

    int childCount() const override
    {
        return QAccessibleWidget::childCount() + (row()->submenu() ? 1 : 0);
    }
    QAccessibleInterface* child(int index) const override
    {
        return index == QAccessibleWidget::childCount() ? interfaceOf(row()->submenu())
                                                        : QAccessibleWidget::child(index);
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child && row()->submenu() && child->object() == row()->submenu()
                   ? QAccessibleWidget::childCount()
                   : QAccessibleWidget::indexOfChild(child);
    }

    QStringList actionNames() const override
    {
        return row()->hasSubmenu() ? QStringList(showMenuAction()) : QStringList();
    }
    void doAction(const QString& actionName) override
    {
        if (actionName == showMenuAction() && row()->hasSubmenu())
            menu()->openSubmenuOf(*row());
    }

private:
    HostedRow* row() const { return static_cast<HostedRow*>(widget()); }
    StatusMenu* menu() const { return static_cast<StatusMenu*>(widget()->window()); }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    if (object == qApp)
        return new ApplicationAccessible;
    if (auto* const menu = qobject_cast<StatusMenu*>(object))
        return new StatusMenuAccessible(menu);
    if (auto* const row = qobject_cast<HostedRow*>(object))
        return new HostedRowAccessible(row);
    return nullptr;
}

} // namespace

void installMenuAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace tarnwick
