// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>
#include <QTextLayout>
#include <QWidget>

#include <memory>
#include <vector>

namespace tarnwick {

struct TextSegment
{
    QString text;
    QColor color;

    bool operator==(const TextSegment&) const = default;
};

/// One text of differently coloured segments in the widget's font, shown verbatim: nothing in it is
/// markup. A text too wide for the widget goes on in further lines, broken inside a word where no
/// space allows otherwise. Its accessible name is the text without the glyphs.
class TextLine : public QWidget
{
    Q_OBJECT

public:
    explicit TextLine(QWidget* parent = nullptr);

    [[nodiscard]] const std::vector<TextSegment>& segments() const { return m_segments; }
    void setSegments(std::vector<TextSegment> segments);
    [[nodiscard]] QString text() const;

    /// For a text whose segments each start with a glyph and a space: where their words start, from
    /// where the glyph does. Where writing goes to the left, the glyphs stand on the right of them.
    void setGlyphColumn(int width);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] std::unique_ptr<QTextLayout> layoutForWidth(int width) const;
    [[nodiscard]] QList<QTextLayout::FormatRange> wideningFormats(const QString& text,
                                                                  int start) const;

    void forgetLayout();

    std::vector<TextSegment> m_segments;
    int m_glyphColumn = 0;
    /// Of the text in one line, once it has been asked for: shaping a text takes long, and layouts
    /// ask many times.
    mutable QSize m_lineSize;
    /// Once it has been painted.
    std::unique_ptr<QTextLayout> m_painted;
    int m_paintedWidth = 0;
};

} // namespace tarnwick
