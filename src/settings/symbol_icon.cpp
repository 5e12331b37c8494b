// SPDX-License-Identifier: MIT
#include "settings/symbol_icon.h"

#include "views/colors.h"
#include "views/symbols.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace tarnwick {

namespace {

class SymbolIconEngine : public QIconEngine
{
public:
    explicit SymbolIconEngine(QString symbol)
        : m_symbol(std::move(symbol))
    {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override
    {
        QFont font = withSymbols(QGuiApplication::font());
        font.setPixelSize(rect.height());
        painter->setFont(font);
        painter->setPen(labelColor(QGuiApplication::palette()));
        painter->drawText(rect, Qt::AlignCenter | Qt::TextDontClip, m_symbol);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SymbolIconEngine(*this); }

private:
    const QString m_symbol;
};

} // namespace

QIcon symbolIcon(QStringView name)
{
    return QIcon(new SymbolIconEngine(symbolNamed(name)));
}

} // namespace tarnwick
