// SPDX-License-Identifier: MIT
#include "platform/freedesktop/palette_follower.h"

#include "platform/appearance.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QStyle>
#include <QToolTip>

namespace tarnwick {

PaletteFollower::PaletteFollower()
{
    create();
    qApp->installEventFilter(this);
    colorToolTips();
    connect(&m_kde, &KdeSettings::changed, this, &PaletteFollower::followKde);
}

bool PaletteFollower::event(QEvent* event)
{
    // Only once Qt has finished with its own palette.
    if (event->type() == QEvent::ThemeChange)
        QMetaObject::invokeMethod(this, &PaletteFollower::follow, Qt::QueuedConnection);
    return QWindow::event(event);
}

void PaletteFollower::followKde()
{
    const auto palette = KdeSettings::palette();
    if (palette && *palette != QApplication::palette())
        QApplication::setPalette(*palette);
}

void PaletteFollower::follow()
{
    const QPalette current = QApplication::style()->standardPalette();
    if (appearanceOf(current) != appearanceOf(QApplication::palette()))
        QApplication::setPalette(current);
}

bool PaletteFollower::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange)
        colorToolTips();
    return false;
}

void PaletteFollower::colorToolTips()
{
    const QPalette palette = QApplication::palette();
    QPalette tips = QToolTip::palette();
    tips.setColor(QPalette::ToolTipBase, palette.color(QPalette::Window));
    tips.setColor(QPalette::ToolTipText, palette.color(QPalette::WindowText));
    QToolTip::setPalette(tips);
}

} // namespace tarnwick
