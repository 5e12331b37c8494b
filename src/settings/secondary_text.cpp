// SPDX-License-Identifier: MIT
#include "settings/secondary_text.h"

#include "views/colors.h"

#include <QEvent>
#include <QGuiApplication>

namespace tarnwick {

SecondaryText::SecondaryText(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    takeColor();
}

void SecondaryText::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        takeColor();
    QLabel::changeEvent(event);
}

void SecondaryText::takeColor()
{
    const QColor color = secondaryLabelColor(QGuiApplication::palette());
    if (palette().color(QPalette::WindowText) == color)
        return;
    QPalette own = palette();
    own.setColor(QPalette::WindowText, color);
    setPalette(own);
}

} // namespace tarnwick
