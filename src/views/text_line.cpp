// SPDX-License-Identifier: MIT
#include "views/text_line.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace tarnwick {

namespace {

constexpr qreal lineGap = 3;

void breakIntoLines(QTextLayout& layout, qreal width)
{
    qreal y = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, y});
        y += line.height() + lineGap;
    }
    layout.endLayout();
}

QSizePolicy wrappingTextPolicy()
{
    QSizePolicy policy(QSizePolicy::Maximum, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    return policy;
}

} // namespace

TextLine::TextLine(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(wrappingTextPolicy());
}

void TextLine::setSegments(std::vector<TextSegment> segments)
{
    if (segments == m_segments)
        return;
    m_segments = std::move(segments);
    static const QRegularExpression glyphs(QStringLiteral("\\p{Co}"));
    setAccessibleName(text().remove(glyphs).simplified());
    updateGeometry();
    update();
}

QString TextLine::text() const
{
    QString text;
    for (const TextSegment& segment : m_segments)
        text += segment.text;
    return text;
}

QSize TextLine::sizeHint() const
{
    const auto layout = layoutForWidth(QWIDGETSIZE_MAX);
    return {static_cast<int>(std::ceil(layout->maximumWidth())),
            static_cast<int>(std::ceil(layout->boundingRect().height()))};
}

QSize TextLine::minimumSizeHint() const
{
    const QFontMetrics metrics(font());
    return {std::min(metrics.averageCharWidth() * 2, sizeHint().width()), metrics.height()};
}

int TextLine::heightForWidth(int width) const
{
    return static_cast<int>(std::ceil(layoutForWidth(width)->boundingRect().height()));
}

void TextLine::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QWidget::changeEvent(event);
}

void TextLine::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    layoutForWidth(width())->draw(&painter, {0, 0});
}

std::unique_ptr<QTextLayout> TextLine::layoutForWidth(int width) const
{
    auto layout = std::make_unique<QTextLayout>(text(), font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout->setTextOption(option);

    QList<QTextLayout::FormatRange> formats;
    int start = 0;
    for (const TextSegment& segment : m_segments) {
        QTextCharFormat format;
        format.setForeground(segment.color);
        formats.append({start, static_cast<int>(segment.text.size()), format});
        start += static_cast<int>(segment.text.size());
    }
    layout->setFormats(formats);
    breakIntoLines(*layout, width);
    return layout;
}

} // namespace tarnwick
