// SPDX-License-Identifier: MIT
#include "views/text_line.h"

#include <QEvent>
#include <QFontMetricsF>
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

/// In a text that runs to the left: the words still run to the right, but the glyph stands on the
/// right of them.
QString mirrored(const QString& segment)
{
    const QChar rightToLeftMark(u'\u200f');
    const QChar isolate(u'\u2066');
    const QChar endOfIsolate(u'\u2069');
    const qsizetype words = segment.indexOf(QChar::Nbsp) + 1;
    const qsizetype spaces = segment.size() - segment.trimmed().size();
    return segment.first(words) + rightToLeftMark + isolate +
           segment.sliced(words).chopped(spaces) + endOfIsolate + rightToLeftMark +
           segment.last(spaces);
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
    forgetLayout();
    update();
}

QString TextLine::text() const
{
    QString text;
    for (const TextSegment& segment : m_segments)
        text += segment.text;
    return text;
}

void TextLine::setGlyphColumn(int width)
{
    m_glyphColumn = width;
    forgetLayout();
    update();
}

QSize TextLine::sizeHint() const
{
    if (!m_lineSize.isValid()) {
        const auto layout = layoutForWidth(QWIDGETSIZE_MAX);
        m_lineSize = {static_cast<int>(std::ceil(layout->maximumWidth())),
                      static_cast<int>(std::ceil(layout->boundingRect().height()))};
    }
    return m_lineSize;
}

QSize TextLine::minimumSizeHint() const
{
    const QFontMetrics metrics(font());
    return {std::min(metrics.averageCharWidth() * 2, sizeHint().width()), metrics.height()};
}

int TextLine::heightForWidth(int width) const
{
    if (width >= sizeHint().width())
        return sizeHint().height();
    return static_cast<int>(std::ceil(layoutForWidth(width)->boundingRect().height()));
}

void TextLine::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        forgetLayout();
    QWidget::changeEvent(event);
}

void TextLine::forgetLayout()
{
    m_lineSize = {};
    m_painted.reset();
    updateGeometry();
}

void TextLine::paintEvent(QPaintEvent* /*event*/)
{
    if (!m_painted || m_paintedWidth != width()) {
        m_painted = layoutForWidth(width());
        m_paintedWidth = width();
    }
    QPainter painter(this);
    m_painted->draw(&painter, {0, 0});
}

std::unique_ptr<QTextLayout> TextLine::layoutForWidth(int width) const
{
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const bool hasMirroredColumn = isMirrored && m_glyphColumn > 0;
    QString text;
    QList<QTextLayout::FormatRange> formats;
    for (const TextSegment& segment : m_segments) {
        QTextCharFormat format;
        format.setForeground(segment.color);
        const auto start = static_cast<int>(text.size());
        text += hasMirroredColumn ? mirrored(segment.text) : segment.text;
        formats.append({start, static_cast<int>(text.size()) - start, format});
        if (m_glyphColumn > 0)
            formats += wideningFormats(text, start);
    }

    auto layout = std::make_unique<QTextLayout>(text, font());
    layout->setCacheEnabled(true); // else the text is shaped once more when it is drawn
    QTextOption option; // the constructor that takes an alignment sets a direction as well
    option.setAlignment(isMirrored ? Qt::AlignRight : Qt::AlignLeft);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    if (hasMirroredColumn)
        option.setTextDirection(Qt::RightToLeft);
    layout->setTextOption(option);
    layout->setFormats(formats);
    breakIntoLines(*layout, width);
    return layout;
}

/// Spreads the glyph at `start` and its space to the width of the column, and the segments apart by
/// as much, so that each glyph stays with its words.
QList<QTextLayout::FormatRange> TextLine::wideningFormats(const QString& text, int start) const
{
    const auto gap = static_cast<int>(text.indexOf(QChar::Nbsp, start));
    if (gap < 0)
        return {};
    const qreal width =
        QFontMetricsF(font()).horizontalAdvance(text.sliced(start, gap + 1 - start));
    QTextCharFormat format;
    format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
    format.setFontLetterSpacing(m_glyphColumn - width);
    return {{gap, 1, format}, {static_cast<int>(text.size()) - 1, 1, format}};
}

} // namespace tarnwick
