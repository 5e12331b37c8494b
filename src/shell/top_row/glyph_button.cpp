// SPDX-License-Identifier: MIT
#include "shell/top_row/glyph_button.h"

#include "views/row_metrics.h"
#include "views/symbols.h"

namespace tarnwick {

namespace {

constexpr QSize minSize{40, 26};
constexpr QSize padding{8, 8};
constexpr int glyphSize = 14;

} // namespace

GlyphButton::GlyphButton(char32_t glyph, const QString& action, QWidget* parent)
    : QPushButton(glyphText(glyph), parent)
{
    setAction(action);
}

void GlyphButton::setAction(const QString& action)
{
    setToolTip(action);
    setAccessibleName(action);
}

void GlyphButton::setInterfaceFont(const QFont& interfaceFont)
{
    setFont(row::sizedFont(withSymbols(interfaceFont), glyphSize));
    const int side = row::sizedSide(interfaceFont, glyphSize);
    setFixedSize(minSize.expandedTo(QSize(side, side) + padding));
}

} // namespace tarnwick
