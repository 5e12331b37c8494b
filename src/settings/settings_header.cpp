// SPDX-License-Identifier: MIT
#include "settings/settings_header.h"

#include "views/symbols.h"

#include <QLabel>
#include <QVBoxLayout>

namespace tarnwick {

namespace {

constexpr int symbolSize = 24;
constexpr int versionSize = 12;
constexpr int gapUnderSymbol = 10;
constexpr int gapUnderName = 4;

QLabel* newLine(const QString& text, const QFont& font, QWidget* parent)
{
    auto* const line = new QLabel(text, parent);
    line->setTextFormat(Qt::PlainText);
    line->setAlignment(Qt::AlignCenter);
    line->setFont(font);
    return line;
}

QFont sized(QFont font, int pixels)
{
    font.setPixelSize(pixels);
    return font;
}

} // namespace

SettingsHeader::SettingsHeader(const QString& version, QWidget* parent)
    : QWidget(parent)
{
    setFixedHeight(bandHeight + 2 * overflow);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addStretch(1);
    auto* const symbol =
        newLine(symbolNamed(u"hammer.fill"), sized(withSymbols(font()), symbolSize), this);
    // The font's own line height leaves room for descenders that a symbol does not have.
    symbol->setFixedHeight(symbolSize);
    symbol->setAccessibleName(tr("Settings"));
    column->addWidget(symbol);
    column->addSpacing(gapUnderSymbol);
    column->addWidget(newLine(QStringLiteral("Tarnwick"), font(), this));
    column->addSpacing(gapUnderName);
    column->addWidget(newLine(tr("version %1").arg(version), sized(font(), versionSize), this));
    column->addStretch(1);
}

} // namespace tarnwick
