// SPDX-License-Identifier: MIT
#include "views/colors.h"

#include <QPalette>

#include <algorithm>

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

/// Reads the hexadecimal digits at the start; a number past 64 bits is the largest that fits.
quint64 leadingHexNumber(QStringView text)
{
    if (text.startsWith(u"0x", Qt::CaseInsensitive))
        text = text.sliced(2);
    constexpr quint64 highestNibble = Q_UINT64_C(0xF) << 60;
    quint64 value = 0;
    for (const QChar c : text) {
        bool isDigit = false;
        const uint digit = QStringView(&c, 1).toUInt(&isDigit, 16);
        if (!isDigit)
            break;
        if ((value & highestNibble) != 0)
            return ~Q_UINT64_C(0);
        value = (value << 4) | digit;
    }
    return value;
}

/// Components count to 255; one that lies beyond is shown as 255.
QColor fromComponents(quint64 red, quint64 green, quint64 blue, quint64 alpha)
{
    const auto component = [](quint64 value) {
        return static_cast<int>(std::min(value, Q_UINT64_C(255)));
    };
    return {component(red), component(green), component(blue), component(alpha)};
}

QColor shade(Appearance appearance, QRgb light, QRgb dark)
{
    return QColor::fromRgb(appearance == Appearance::Dark ? dark : light);
}

} // namespace

QColor colorFromHex(const QString& text)
{
    const QString digits = trimmedToAlphanumerics(text);
    const quint64 v = leadingHexNumber(digits);
    switch (digits.size()) {
    case 3:
        return fromComponents((v >> 8) * 17, (v >> 4 & 15) * 17, (v & 15) * 17, 255);
    case 6:
        return fromComponents(v >> 16, v >> 8 & 255, v & 255, 255);
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
    return shade(appearance, 0xd9261c, 0xff5f57);
}
QColor indigo(Appearance appearance)
{
    return shade(appearance, 0x5856d6, 0x8b89ff);
}
QColor purple(Appearance appearance)
{
    return shade(appearance, 0x9b3fc8, 0xcb7cf2);
}
QColor blue(Appearance appearance)
{
    return shade(appearance, 0x0a66d8, 0x4da3ff);
}

QColor orange(Appearance appearance)
{
    return appearance == Appearance::Dark ? QColor(0xff, 0x9f, 0x0a)
                                          : colorFromHex(QStringLiteral("FFB300"));
}

QColor teal(Appearance appearance)
{
    return shade(appearance, 0x0a7f92, 0x55c8d8);
}
QColor yellow(Appearance appearance)
{
    return shade(appearance, 0xa07d00, 0xffd60a);
}

} // namespace colors

} // namespace tarnwick
