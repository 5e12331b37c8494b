// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace tarnwick {

/// The application's style, with menus of one column whatever their length.
class MenuStyle : public QProxyStyle
{
    Q_OBJECT

public:
    MenuStyle();

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
};

} // namespace tarnwick
