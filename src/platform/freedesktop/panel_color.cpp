// SPDX-License-Identifier: MIT
#include "platform/freedesktop/panel_color.h"

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QStandardPaths>

#include <algorithm>
#include <vector>

namespace tarnwick {

namespace {

bool screenCanBeRead()
{
    // Under a Wayland compositor the X server has no picture of the panel.
    return QGuiApplication::platformName() == u"xcb" &&
           qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

QImage grab(const QRect& area)
{
    QScreen* screen = QGuiApplication::screenAt(area.center());
    if (!screen)
        return {};
    const QRect part = area.translated(-screen->geometry().topLeft());
    return screen->grabWindow(0, part.x(), part.y(), part.width(), part.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

/// The pixel of median brightness: icons and letters cover less than half of a panel.
std::optional<QColor> median(const QImage& image)
{
    std::vector<QRgb> pixels;
    pixels.reserve(static_cast<std::size_t>(image.width()) *
                   static_cast<std::size_t>(image.height()));
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            pixels.push_back(image.pixel(x, y));
    if (pixels.empty())
        return std::nullopt;
    const auto middle = pixels.begin() + image.width() * image.height() / 2;
    std::ranges::nth_element(pixels, middle, {}, [](QRgb pixel) { return qGray(pixel); });
    return QColor(*middle);
}

bool isOn(QStringView desktop)
{
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(desktop);
}

} // namespace

std::optional<QColor> panelColor(const QRect& area)
{
    if (screenCanBeRead() && !area.isEmpty())
        return median(grab(area));
    if (isOn(u"GNOME"))
        return Qt::black; // its bar is dark whatever the theme
    return std::nullopt;
}

QString tintedIconName()
{
    QString name = QStringLiteral("org.tarnwick.Tarnwick-symbolic");
    if (screenCanBeRead() || !(isOn(u"KDE") || isOn(u"GNOME")) ||
        QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                               QStringLiteral("icons/hicolor/symbolic/apps/%1.svg").arg(name))
            .isEmpty())
        return {};
    return name;
}

} // namespace tarnwick
