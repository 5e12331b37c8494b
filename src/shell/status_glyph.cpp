// SPDX-License-Identifier: MIT
#include "shell/status_glyph.h"

#include "views/symbols.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace tarnwick {

namespace {

constexpr QRgb lightInk = 0xfff5f5f5;
constexpr QRgb darkInk = 0xff202020;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double relativeLuminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// Hosts ask for any size, at any scale; an outline is sharp at all of them.
class StatusGlyph : public QIconEngine
{
public:
    explicit StatusGlyph(const QColor& ink)
        : m_ink(ink)
    {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override
    {
        QFont font = withSymbols(QGuiApplication::font());
        font.setPixelSize(64);
        QPainterPath outline;
        outline.addText({}, font, glyphText(glyph::statusItem));

        constexpr double fill = 14.0 / 16;
        const QRectF ink = outline.boundingRect();
        const double scale =
            fill * std::min(rect.width() / ink.width(), rect.height() / ink.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center());
        painter->scale(scale, scale);
        painter->translate(-ink.center());
        painter->fillPath(outline, m_ink);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    /// What a status notifier host is sent.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        return {{16, 16}, {22, 22}, {24, 24}, {32, 32}, {44, 44}, {48, 48}, {64, 64}};
    }

    QIconEngine* clone() const override { return new StatusGlyph(*this); }

private:
    QColor m_ink;
};

} // namespace

QColor statusGlyphColor(const QColor& panel)
{
    return contrast(panel, lightInk) >= contrast(panel, darkInk) ? lightInk : darkInk;
}

QIcon statusGlyphIcon(const QColor& ink)
{
    return QIcon(new StatusGlyph(ink));
}

} // namespace tarnwick
