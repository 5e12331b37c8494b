// SPDX-License-Identifier: MIT
#include "views/empty_state_view.h"

#include "views/colors.h"
#include "views/symbols.h"
#include "views/text_line.h"

#include <QEvent>
#include <QHBoxLayout>

#include <algorithm>

namespace tarnwick {

namespace {

constexpr int maxWidth = 300;
constexpr int minHeight = 140;

QString emptyStateText(const QString& settings)
{
    return EmptyStateView::tr("Open the settings (%1) and add some repositories to get started!")
        .arg(settings);
}

} // namespace

EmptyStateView::EmptyStateView(QWidget* parent)
    : QWidget(parent)
    , m_text(new TextLine(this))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_text, 0, Qt::AlignVCenter);
    layout->addStretch(1);
    setMinimumHeight(minHeight);
    m_text->setMaximumWidth(maxWidth);
    m_text->setFont(withSymbols(font()));
    render();
}

QString EmptyStateView::text() const
{
    return emptyStateText(tr("the gear"));
}

QSize EmptyStateView::sizeHint() const
{
    const int width = std::min(maxWidth, m_text->sizeHint().width());
    return {width, std::max(minHeight, m_text->heightForWidth(width))};
}

void EmptyStateView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        m_text->setFont(withSymbols(font()));
    if (event->type() == QEvent::PaletteChange)
        render();
    QWidget::changeEvent(event);
}

void EmptyStateView::render()
{
    m_text->setSegments(
        {{emptyStateText(glyphText(glyph::settings)), secondaryLabelColor(palette())}});
}

} // namespace tarnwick
