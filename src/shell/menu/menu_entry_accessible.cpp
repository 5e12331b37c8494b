// SPDX-License-Identifier: MIT
#include "shell/menu/menu_entry_accessible.h"

#include "shell/menu/status_menu.h"

#include <QAccessibleObject>
#include <QAction>

namespace tarnwick {

namespace {

StatusMenu* menuOf(const QAction* action)
{
    for (QObject* const object : action->associatedObjects()) {
        if (auto* const menu = qobject_cast<StatusMenu*>(object))
            return menu;
    }
    return nullptr;
}

class MenuEntryAccessible : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    explicit MenuEntryAccessible(QAction* action)
        : QAccessibleObject(action)
    {}

    bool isValid() const override { return QAccessibleObject::isValid() && menuOf(action()); }
    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(menuOf(action()));
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QAccessible::Role role() const override
    {
        return action()->isSeparator() ? QAccessible::Separator : QAccessible::MenuItem;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? action()->iconText() : QString();
    }

    QAccessible::State state() const override
    {
        const StatusMenu* const menu = menuOf(action());
        QAccessible::State state;
        state.focusable = !action()->isSeparator();
        state.focused = menu->hasFocus() && menu->activeAction() == action();
        state.disabled = !action()->isEnabled();
        state.invisible = !menu->isVisible() || menu->actionGeometry(action()).isEmpty();
        return state;
    }

    QRect rect() const override
    {
        const StatusMenu* const menu = menuOf(action());
        return menu->actionGeometry(action()).translated(menu->mapToGlobal(QPoint()));
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override
    {
        return action()->isSeparator() ? QStringList() : QStringList(pressAction());
    }
    void doAction(const QString& name) override
    {
        if (name == pressAction())
            action()->trigger();
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QAction* action() const { return static_cast<QAction*>(object()); }
};

} // namespace

QAccessibleInterface* makeMenuEntryAccessible(QAction* action)
{
    return menuOf(action) ? new MenuEntryAccessible(action) : nullptr;
}

} // namespace tarnwick
