// SPDX-License-Identifier: MIT
#pragma once

#include "symbol_table.h"

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QString>

class QPainter;
class QRectF;

/// The symbols of the interface are glyphs of a font of our own, so that they take the colour and
/// the size of the text they stand in. Main thread only, after the application object is made.
namespace tarnwick {

/// Loads the font on first use.
[[nodiscard]] QString symbolFontFamily();

/// The same font, able to show symbols among its letters. A style sheet that sets a font family
/// undoes this.
[[nodiscard]] QFont withSymbols(const QFont& interfaceFont);

/// One glyph as text. The code points that texts contain are in the namespace `glyph`.
[[nodiscard]] QString glyphText(char32_t codePoint);

/// The named symbol as text; empty for the empty or an unknown name.
[[nodiscard]] QString symbolNamed(QStringView name);

/// The symbol as an icon of any size; without a colour in that of labels in the application's
/// palette at the time of painting. `name` is the icon's name in icon themes, if it has one. An
/// edge, if it has a colour, sets the symbol off from what is behind it.
[[nodiscard]] QIcon symbolIcon(const QString& glyph, const QColor& color = {},
                               const QString& name = {}, const QColor& edge = {});

/// Fills the square with the glyph, in the painter's pen.
void drawSymbol(QPainter& painter, const QRectF& square, const QString& glyph,
                const QColor& edge = {});

} // namespace tarnwick
