// SPDX-License-Identifier: MIT
#include "views/status_summary.h"

#include "views/colors.h"
#include "views/symbols.h"

#include <array>

namespace tarnwick {

namespace {

struct SummaryWord
{
    const char16_t* suffix;
    char32_t glyph;
    QColor (*color)(Appearance);
};

constexpr std::array summaryWords{
    SummaryWord{u"added", glyph::added, colors::green},
    SummaryWord{u"deleted", glyph::deleted, colors::red},
    SummaryWord{u"removed", glyph::removed, colors::indigo},
    SummaryWord{u"behind", glyph::behind, colors::purple},
    SummaryWord{u"ahead", glyph::ahead, colors::blue},
    SummaryWord{u"changes", glyph::changes, colors::orange},
    SummaryWord{u"change", glyph::changes, colors::orange},
    SummaryWord{u"staged", glyph::staged, colors::teal},
    SummaryWord{u"untracked", glyph::untracked, colors::yellow},
};

constexpr QChar noBreakSpace(u'\u00A0');

} // namespace

TextSegment statusPartText(const QString& part, SummaryStyle style, Appearance appearance)
{
    const QString shownNumber =
        style == SummaryStyle::OnlyIcons ? part.section(noBreakSpace, 0, 0) : part;
    for (const SummaryWord& word : summaryWords) {
        if (part.endsWith(QStringView(word.suffix))) {
            return {glyphText(word.glyph) + noBreakSpace + shownNumber + QStringLiteral("   "),
                    word.color(appearance)};
        }
    }
    return {part, colors::white()};
}

std::vector<TextSegment> statusText(const QString& statusString, SummaryStyle style,
                                    Appearance appearance)
{
    std::vector<TextSegment> segments;
    for (const QString& part : statusString.split(QStringLiteral(", ")))
        segments.push_back(statusPartText(part, style, appearance));
    return segments;
}

} // namespace tarnwick
