// SPDX-License-Identifier: MIT
#include "views/symbols.h"

#include "views/colors.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QRawFont>
#include <QStringList>

#include <algorithm>

namespace tarnwick {

namespace {

/// Of a glyph above the baseline, in parts of its height.
constexpr qreal middle = 0.36;

constexpr int grid = 24;

/// Of an edge, the inner half of which is covered.
constexpr qreal edgeWidth = 2.4;

QByteArray symbolFontBytes()
{
    return QByteArray::fromRawData(reinterpret_cast<const char*>(symbolFontData.data()),
                                   symbolFontSize);
}

QString loadSymbolFont()
{
    const int font = QFontDatabase::addApplicationFontFromData(symbolFontBytes());
    return QFontDatabase::applicationFontFamilies(font).value(0);
}

/// An outline is sharp at any size and lies exactly where it is drawn; a letter does not.
const QPainterPath& outlineOf(const QString& glyph)
{
    static const QRawFont font(symbolFontBytes(), grid, QFont::PreferNoHinting);
    static QHash<QString, QPainterPath> outlines;
    const auto known = outlines.constFind(glyph);
    if (known != outlines.cend())
        return *known;
    return *outlines.insert(glyph, font.pathForGlyph(font.glyphIndexesForString(glyph).value(0)));
}

class SymbolIcon : public QIconEngine
{
public:
    SymbolIcon(QString glyph, const QColor& color, QString name, const QColor& edge)
        : m_glyph(std::move(glyph))
        , m_color(color)
        , m_name(std::move(name))
        , m_edge(edge)
    {}

    QString iconName() override { return m_name; }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override
    {
        QRect square(QPoint(), QSize(1, 1).scaled(rect.size(), Qt::KeepAspectRatio));
        square.moveCenter(rect.center());
        painter->setPen(m_color.isValid() ? m_color : labelColor(QGuiApplication::palette()));
        drawSymbol(*painter, square, m_glyph, m_edge);
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

    QIconEngine* clone() const override { return new SymbolIcon(*this); }

private:
    const QString m_glyph;
    const QColor m_color;
    const QString m_name;
    const QColor m_edge;
};

} // namespace

QString symbolFontFamily()
{
    static const QString family = loadSymbolFont();
    return family;
}

QFont withSymbols(const QFont& interfaceFont)
{
    // The symbols stand second: were they first, letters would fall back to any other font.
    QStringList families = interfaceFont.families();
    if (families.isEmpty())
        families.append(QFontInfo(interfaceFont).family());
    if (!families.contains(symbolFontFamily()))
        families.append(symbolFontFamily());
    QFont font = interfaceFont;
    font.setFamilies(families);
    font.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(font.styleStrategy() & ~QFont::NoFontMerging));
    return font;
}

QString glyphText(char32_t codePoint)
{
    return QString::fromUcs4(&codePoint, 1);
}

QString symbolNamed(QStringView name)
{
    const auto* const symbol =
        std::ranges::find_if(namedSymbols, [name](const NamedSymbol& s) { return name == s.name; });
    return symbol == namedSymbols.end() ? QString() : glyphText(symbol->codePoint);
}

QIcon symbolIcon(const QString& glyph, const QColor& color, const QString& name, const QColor& edge)
{
    return QIcon(new SymbolIcon(glyph, color, name, edge));
}

void drawSymbol(QPainter& painter, const QRectF& square, const QString& glyph, const QColor& edge)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / grid, square.height() / grid);
    painter.translate(0, (0.5 + middle) * grid);
    const QPainterPath& outline = outlineOf(glyph);
    if (edge.isValid())
        painter.strokePath(outline,
                           QPen(edge, edgeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(outline, painter.pen().color());
    painter.restore();
}

} // namespace tarnwick
