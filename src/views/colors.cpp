// SPDX-License-Identifier: MIT
#include "views/colors.h"

#include <QPalette>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace tarnwick {

namespace {

constexpr qreal secondaryOpacity = 0.65;

QString trimmedToAlphanumerics(const QString& text)
{
    const auto isAlphanumeric = [](QChar c) { return c.isLetterOrNumber() || c.isMark(); };
    const auto first = std::find_if(text.cbegin(), text.cend(), isAlphanumeric);
    const auto last =
        std::find_if(text.crbegin(), std::make_reverse_iterator(first), isAlphanumeric).base();
    return QString(first, last - first);
}

/// Reads the hexadecimal digits at the start, of which eight count.
quint32 leadingHexNumber(const QString& text)
{
    static const QRegularExpression number(QStringLiteral("^(?:0[xX])?([0-9A-Fa-f]{0,8})"));
    return number.match(text).captured(1).toUInt(nullptr, 16);
}

QColor fromComponents(quint32 red, quint32 green, quint32 blue, quint32 alpha = 255)
{
    return QColor::fromRgba(alpha << 24 | red << 16 | green << 8 | blue);
}

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double relativeLuminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

QColor shade(Appearance appearance, QRgb light, QRgb dark)
{
    return QColor::fromRgb(appearance == Appearance::Dark ? dark : light);
}

} // namespace

QColor colorFromHex(const QString& text)
{
    const QString digits = trimmedToAlphanumerics(text);
    const quint32 v = leadingHexNumber(digits);
    switch (digits.size()) {
    case 3:
        return fromComponents((v >> 8) * 17, (v >> 4 & 15) * 17, (v & 15) * 17);
    case 6:
        return fromComponents(v >> 16, v >> 8 & 255, v & 255);
    case 8:
        return fromComponents(v >> 16 & 255, v >> 8 & 255, v & 255, v >> 24);
    default:
        return fromComponents(1, 1, 0, 1);
    }
}

QColor labelColor(const QPalette& palette)
{
    return palette.color(QPalette::WindowText);
}

QColor secondaryLabelColor(const QPalette& palette)
{
    QColor color = labelColor(palette);
    color.setAlphaF(static_cast<float>(color.alphaF() * secondaryOpacity));
    return color;
}

QColor separatorColor(const QPalette& palette)
{
    constexpr float strength = 0.25F;
    QColor color = labelColor(palette);
    color.setAlphaF(strength);
    return color;
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

namespace colors {

QColor white()
{
    return Qt::white;
}

QColor green(Appearance appearance)
{
    return appearance == Appearance::Dark ? QColor(0x32, 0xd7, 0x4b)
                                          : QColor::fromRgbF(0.0F, 0.6F, 0.0F);
}

QColor red(Appearance appearance)
{
    return shade(appearance, 0xc2241a, 0xff8880);
}
QColor indigo(Appearance appearance)
{
    return shade(appearance, 0x4e4ccb, 0xa3a1ff);
}
QColor purple(Appearance appearance)
{
    return shade(appearance, 0x8c36b5, 0xd391f6);
}
QColor blue(Appearance appearance)
{
    return shade(appearance, 0x0b5bc4, 0x6bb3ff);
}

QColor orange(Appearance appearance)
{
    return appearance == Appearance::Dark ? QColor(0xff, 0x9f, 0x0a)
                                          : colorFromHex(QStringLiteral("FFB300"));
}

QColor teal(Appearance appearance)
{
    return shade(appearance, 0x096a7a, 0x55c8d8);
}
QColor yellow(Appearance appearance)
{
    return shade(appearance, 0x866800, 0xffd60a);
}

} // namespace colors

} // namespace tarnwick
