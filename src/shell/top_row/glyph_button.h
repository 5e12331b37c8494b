// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace tarnwick {

/// A push button that shows one glyph; what it does stands in its tooltip and accessible name.
class GlyphButton : public QPushButton
{
    Q_OBJECT

public:
    GlyphButton(char32_t glyph, const QString& action, QWidget* parent = nullptr);

    /// Says what it does, and how far that is.
    void setAction(const QString& action);

    /// To be called whenever the font changes: glyph and button keep their proportion to it.
    void setInterfaceFont(const QFont& interfaceFont);
};

} // namespace tarnwick
