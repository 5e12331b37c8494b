// SPDX-License-Identifier: MIT
#pragma once

#include <QWidgetAction>

namespace tarnwick {

class HostingView;

/// The action by which a menu shows a hosted view. Makes the view behave like a menu entry: every
/// part of it reports the pointer to the menu, its blank area takes clicks instead of closing the
/// menu, and its buttons leave the arrow keys to the menu.
class HostedRow : public QWidgetAction
{
    Q_OBJECT

public:
    /// Owns the view.
    HostedRow(HostingView* view, QObject* parent);

    [[nodiscard]] HostingView& view() const { return *m_view; }
    /// Whether a press on the blank area is being held.
    [[nodiscard]] bool isHeld() const { return m_isHeld; }

    /// Moves the focus to the next or previous widget inside; false if there is none.
    bool moveFocus(bool forward);
    /// Moves the focus to the first or the last widget inside.
    void focusEnd(bool first);

Q_SIGNALS:
    void clicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool filterViewEvent(QEvent& event);
    void adoptChildren();
    [[nodiscard]] QWidgetList focusWidgets() const;

    HostingView* const m_view;
    bool m_isHeld = false;
};

} // namespace tarnwick
