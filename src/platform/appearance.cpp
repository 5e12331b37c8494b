// SPDX-License-Identifier: MIT
#include "platform/appearance.h"

#include <QPalette>

namespace tarnwick {

Appearance appearanceOf(const QPalette& palette)
{
    const bool isDark = palette.color(QPalette::WindowText).lightnessF() >
                        palette.color(QPalette::Window).lightnessF();
    return isDark ? Appearance::Dark : Appearance::Light;
}

} // namespace tarnwick
