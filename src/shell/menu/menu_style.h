// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace tarnwick {

/// The application's style, with menus of one column whatever their length and a little air between
/// the rows and the frame.
class MenuStyle : public QProxyStyle
{
    Q_OBJECT

public:
    MenuStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
};

} // namespace tarnwick
