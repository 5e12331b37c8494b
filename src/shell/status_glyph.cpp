// SPDX-License-Identifier: MIT
#include "shell/status_glyph.h"

#include "views/colors.h"
#include "views/symbols.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace tarnwick {

namespace {

constexpr QRgb lightInk = 0xfff5f5f5;
constexpr QRgb darkInk = 0xff202020;

/// Hosts ask for any size, at any scale.
class StatusGlyph : public QIconEngine
{
public:
    explicit StatusGlyph(const QColor& ink)
        : m_ink(ink)
    {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override
    {
        QRect square({}, QSize(1, 1).scaled(rect.size(), Qt::KeepAspectRatio));
        square.moveCenter(rect.center());
        painter->setPen(m_ink);
        drawSymbol(*painter, square, glyphText(glyph::statusItem));
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
