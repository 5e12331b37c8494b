// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>
#include <utility>

namespace tarnwick {

class HostingView;
class StatusMenu;

/// One row of a status menu: a hosted view, and the submenu that the row opens, if any. A row with
/// a submenu is highlighted while it is the active one of its menu. A press on a blank area belongs
/// to the row; a press on a control inside it belongs to the control.
class HostedRow : public QWidget
{
    Q_OBJECT

public:
    /// Owns the view.
    explicit HostedRow(HostingView* view, QWidget* parent = nullptr);

    [[nodiscard]] HostingView& view() const { return *m_view; }

    /// Makes the layouts around each widget heed what has changed while the row is hidden. Else
    /// they would hear of it when it is shown, but a Wayland popup is placed for the size that it
    /// is shown with. The texts of the view and its font cause it themselves.
    void announceSize();

    /// What the row is found by when a part of it is typed.
    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }

    [[nodiscard]] bool hasSubmenu() const { return static_cast<bool>(m_makeSubmenu); }
    /// `make` is called when the submenu is first opened, and returns a child of the row's menu.
    void setSubmenu(std::function<StatusMenu*()> make) { m_makeSubmenu = std::move(make); }
    /// Null until it is first opened.
    [[nodiscard]] StatusMenu* submenu() const { return m_submenu; }
    /// The row has one.
    [[nodiscard]] StatusMenu& ensureSubmenu();

    [[nodiscard]] bool isActive() const { return m_isActive; }
    void setActive(bool active);

    /// The controls inside that can have the focus now, in tab order.
    [[nodiscard]] QWidgetList focusWidgets() const;

Q_SIGNALS:
    /// A press and its release on the blank area.
    void clicked();

protected:
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    HostingView* const m_view;
    QString m_name;
    std::function<StatusMenu*()> m_makeSubmenu;
    StatusMenu* m_submenu = nullptr;
    bool m_isActive = false;
    bool m_isPressed = false;
};

} // namespace tarnwick
