// SPDX-License-Identifier: MIT
#include "shell/top_row/glyph_button.h"

#include "views/symbols.h"

namespace tarnwick {

namespace {

constexpr QSize buttonSize{40, 26};
constexpr int glyphSize = 14;

} // namespace

GlyphButton::GlyphButton(char32_t glyph, const QString& action, QWidget* parent)
    : QPushButton(glyphText(glyph), parent)
{
    QFont glyphFont = withSymbols(font());
    glyphFont.setPixelSize(glyphSize);
    setFont(glyphFont);
    setFixedSize(buttonSize);
    setToolTip(action);
    setAccessibleName(action);
}

} // namespace tarnwick
