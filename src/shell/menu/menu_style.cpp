// SPDX-License-Identifier: MIT
#include "shell/menu/menu_style.h"

#include <QApplication>

namespace tarnwick {

// By name: a proxy that is given the application's own style object would take it away.
MenuStyle::MenuStyle()
    : QProxyStyle(QApplication::style()->name())
{}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const
{
    if (metric == PM_MenuHMargin || metric == PM_MenuVMargin)
        return 6;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int MenuStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const
{
    if (hint == SH_Menu_Scrollable)
        return 1;
    return QProxyStyle::styleHint(hint, option, widget, data);
}

} // namespace tarnwick
