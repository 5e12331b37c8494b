// SPDX-License-Identifier: MIT
#pragma once

#include "platform/appearance.h"

#include <QColor>
#include <QString>

class QPalette;

namespace tarnwick {

/// The sRGB colour of a hexadecimal text: three digits, six, or eight with the opacity first.
/// Whatever surrounds the letters and digits ("#FFB300") is left out, and reading stops at the
/// first character that is no hexadecimal digit. Other lengths give a nearly invisible colour.
[[nodiscard]] QColor colorFromHex(const QString& text);

/// Primary and secondary text, as the desktop's palette has them.
[[nodiscard]] QColor labelColor(const QPalette& palette);
[[nodiscard]] QColor secondaryLabelColor(const QPalette& palette);

/// The thin lines between rows and sections, and around menus.
[[nodiscard]] QColor separatorColor(const QPalette& palette);

/// How well one colour is read on the other, from 1 to 21: the contrast ratio of WCAG 2.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// The named colours of the views, each in a shade whose contrast to that appearance's
/// background is 4.5 at least; less are the green and the amber of the light one.
namespace colors {

[[nodiscard]] QColor white();
[[nodiscard]] QColor green(Appearance appearance);
[[nodiscard]] QColor red(Appearance appearance);
[[nodiscard]] QColor indigo(Appearance appearance);
[[nodiscard]] QColor purple(Appearance appearance);
[[nodiscard]] QColor blue(Appearance appearance);
/// The colour of changes: orange, and an amber on a light background.
[[nodiscard]] QColor orange(Appearance appearance);
[[nodiscard]] QColor teal(Appearance appearance);
[[nodiscard]] QColor yellow(Appearance appearance);

} // namespace colors

} // namespace tarnwick
