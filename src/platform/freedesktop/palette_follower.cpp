// SPDX-License-Identifier: MIT
#include "platform/freedesktop/palette_follower.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QStyle>

namespace tarnwick {

namespace {

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::WindowText).lightnessF() >
           palette.color(QPalette::Window).lightnessF();
}

} // namespace

PaletteFollower::PaletteFollower()
{
    create();
}

bool PaletteFollower::event(QEvent* event)
{
    // Only once Qt has finished with its own palette.
    if (event->type() == QEvent::ThemeChange)
        QMetaObject::invokeMethod(this, &PaletteFollower::follow, Qt::QueuedConnection);
    return QWindow::event(event);
}

void PaletteFollower::follow()
{
    const QPalette current = QApplication::style()->standardPalette();
    if (isDark(current) != isDark(QApplication::palette()))
        QApplication::setPalette(current);
}

} // namespace tarnwick
