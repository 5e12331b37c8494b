// SPDX-License-Identifier: MIT
#include "views/row_metrics.h"

#include <QFont>
#include <QFontInfo>

namespace tarnwick::row {

namespace {

qreal proportion(int size)
{
    return static_cast<qreal>(size) / interfaceSize;
}

} // namespace

QFont sizedFont(const QFont& interfaceFont, int size)
{
    QFont font = interfaceFont;
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * proportion(size));
    else // fonts are given in points or in pixels
        font.setPixelSize(qRound(font.pixelSize() * proportion(size)));
    return font;
}

int sizedSide(const QFont& interfaceFont, int size)
{
    return qRound(QFontInfo(interfaceFont).pixelSize() * proportion(size));
}

} // namespace tarnwick::row
