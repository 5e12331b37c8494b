// SPDX-License-Identifier: MIT
#include "model/git_status.h"

#include "model/diagnostics.h"

#include <algorithm>

namespace tarnwick {

namespace {

constexpr QChar noBreakSpace(u'\u00A0');
constexpr QLatin1String bothCode("MM ");

QString trimBlanks(const QString& piece)
{
    const auto isBlank = [](QChar c) { return c == u' ' || c == u'\t'; };
    qsizetype first = 0;
    qsizetype last = piece.size();
    while (first < last && isBlank(piece[first]))
        ++first;
    while (first < last && isBlank(piece[last - 1]))
        --last;
    return piece.mid(first, last - first);
}

/// Reads all that the summary counts in one pass over the text.
class StatusCounts
{
public:
    explicit StatusCounts(QStringView text)
        : m_text(text)
    {
        countLine(0);
        for (qsizetype i = 0; i < m_text.size(); ++i) {
            switch (m_text[i].unicode()) {
            case u'\n':
                countLine(i + 1);
                break;
            case u'M':
                countCodes(i);
                break;
            case u'd':
                readCommits(i + 1);
                break;
            default:
                break;
            }
        }
    }

    qsizetype changes = 0;
    qsizetype added = 0;
    qsizetype untracked = 0;
    qsizetype staged = 0;
    qsizetype removed = 0;
    qsizetype deleted = 0;
    /// As the header has them: "2" for "[ahead 2]". Empty if there are none.
    QStringView behind;
    QStringView ahead;

private:
    void countLine(qsizetype start)
    {
        const QStringView line = m_text.sliced(start);
        added += line.startsWith(u"A  ");
        untracked += line.startsWith(u"??");
        removed += line.startsWith(u" D");
        deleted += line.startsWith(u"D  ");
    }

    /// " M " and "MM " are changes, "M  " and "MM " are staged, wherever they stand. Where two of
    /// them overlap, the first of that order counts; where one overlaps itself, the left one does.
    void countCodes(qsizetype position)
    {
        const QStringView text = m_text.sliced(position);
        if (text.startsWith(u"MM ")) {
            changes += !text.startsWith(u"MM M ");
            staged += !text.startsWith(u"MM  ");
        }
        staged += text.startsWith(u"M  ");
        const qsizetype blank = position - 1;
        if (blank >= m_endOfChange && m_text[blank] == u' ' && text.startsWith(u"M ")) {
            ++changes;
            m_endOfChange = position + 2;
        }
    }

    /// The number after a word that ends here, with its blanks less one. The first in the text
    /// counts.
    void readCommits(qsizetype end)
    {
        const QStringView text = m_text.first(end);
        QStringView* const commits = text.endsWith(u"behind")  ? &behind
                                     : text.endsWith(u"ahead") ? &ahead
                                                               : nullptr;
        if (!commits || !commits->isEmpty())
            return;
        const QStringView rest = m_text.sliced(end);
        const auto* const number = std::find_if_not(rest.begin(), rest.end(), isAsciiSpace);
        const auto* const numberEnd = std::find_if_not(number, rest.end(), isAsciiDigit);
        if (number != rest.begin() && numberEnd != number)
            *commits = QStringView(rest.begin() + 1, numberEnd);
    }

    static bool isAsciiSpace(QChar c) { return c == u' ' || (c >= u'\t' && c <= u'\r'); }
    static bool isAsciiDigit(QChar c) { return c >= u'0' && c <= u'9'; }

    const QStringView m_text;
    qsizetype m_endOfChange = 0;
};

/// Calls `read` for each line after the header that a line feed ends, until it returns false.
template <typename Read>
void forEachPathLine(QStringView gitStatus, Read read)
{
    qsizetype start = gitStatus.indexOf(u'\n') + 1;
    if (start == 0)
        stopProcess();
    for (qsizetype end = 0; (end = gitStatus.indexOf(u'\n', start)) >= 0; start = end + 1) {
        if (!read(gitStatus.sliced(start, end - start)))
            return;
    }
}

SummaryPart counted(const QString& count, const QString& word)
{
    return count + noBreakSpace + word;
}

SummaryPart counted(qsizetype count, const QString& word)
{
    return count > 0 ? counted(QString::number(count), word) : std::nullopt;
}

SummaryPart counted(QStringView count, const QString& word)
{
    return count.isEmpty() ? std::nullopt : counted(count.toString(), word);
}

} // namespace

QStringList components2(const QString& text, const QStringList& separators)
{
    QStringList pieces{text};
    for (const QString& separator : separators) {
        QStringList split;
        for (const QString& piece : std::as_const(pieces))
            split += piece.split(separator);
        pieces = std::move(split);
    }
    std::transform(pieces.cbegin(), pieces.cend(), pieces.begin(), trimBlanks);
    return pieces;
}

SummaryParts summaryParts(const QString& gitStatus)
{
    const StatusCounts counts(gitStatus);
    return {
        .changes = counted(counts.changes, counts.changes == 1 ? QStringLiteral("change")
                                                               : QStringLiteral("changes")),
        .behind = counted(counts.behind, QStringLiteral("behind")),
        .ahead = counted(counts.ahead, QStringLiteral("ahead")),
        .added = counted(counts.added, QStringLiteral("added")),
        .untracked = counted(counts.untracked, QStringLiteral("untracked")),
        .staged = counted(counts.staged, QStringLiteral("staged")),
        .removed = counted(counts.removed, QStringLiteral("removed")),
        .deleted = counted(counts.deleted, QStringLiteral("deleted")),
    };
}

std::optional<QString> statusSummary(const QString& gitStatus)
{
    const SummaryParts parts = summaryParts(gitStatus);
    QStringList texts;
    for (const SummaryPart& part : {parts.changes, parts.behind, parts.ahead, parts.added,
                                    parts.untracked, parts.staged, parts.removed, parts.deleted}) {
        if (part)
            texts += *part;
    }
    if (texts.isEmpty())
        return std::nullopt;
    return texts.join(QStringLiteral(", "));
}

QStringList changedFiles(const QString& gitStatus, qsizetype limit)
{
    QStringList otherLines;
    QStringList splitLines;
    forEachPathLine(gitStatus, [&](QStringView line) {
        if (!line.startsWith(bothCode)) {
            otherLines += line.toString();
        } else if (splitLines.size() < limit) {
            splitLines += line.toString().replace(bothCode, QLatin1String("M  "));
            splitLines += line.toString().replace(bothCode, QLatin1String(" M "));
        }
        return otherLines.size() < limit;
    });
    return (otherLines + splitLines).mid(0, limit);
}

qsizetype changedFileCount(const QString& gitStatus)
{
    qsizetype count = 0;
    forEachPathLine(gitStatus, [&](QStringView line) {
        count += line.startsWith(bothCode) ? 2 : 1;
        return true;
    });
    return count;
}

} // namespace tarnwick
