// SPDX-License-Identifier: MIT
#include "model/git_status.h"

#include "model/diagnostics.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace tarnwick {

namespace {

constexpr QChar noBreakSpace(u'\u00A0');

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

SummaryPart makePart(qsizetype count, const QString& word)
{
    if (count == 0)
        return std::nullopt;
    return QString::number(count) + noBreakSpace + word;
}

qsizetype countOccurrences(const QString& gitStatus, const QStringList& codes)
{
    return components2(gitStatus, codes).size() - 1;
}

qsizetype countLinesStartingWith(const QString& gitStatus, QStringView code)
{
    const auto lines = QStringView(gitStatus).split(u'\n', Qt::SkipEmptyParts);
    return std::count_if(lines.cbegin(), lines.cend(),
                         [code](QStringView line) { return line.startsWith(code); });
}

/// The header counts commits as in "[ahead 2, behind 1]".
SummaryPart headerCount(const QString& gitStatus, const QString& word)
{
    const QRegularExpression counted(word + QStringLiteral("\\s+(\\d+)"));
    const auto match = counted.match(gitStatus);
    if (!match.hasMatch())
        return std::nullopt;
    return match.captured().mid(word.size() + 1) + noBreakSpace + word;
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

SummaryPart changesString(const QString& gitStatus)
{
    const auto count = countOccurrences(gitStatus, {QStringLiteral(" M "), QStringLiteral("MM ")});
    return makePart(count, count == 1 ? QStringLiteral("change") : QStringLiteral("changes"));
}

SummaryPart behindString(const QString& gitStatus)
{
    return headerCount(gitStatus, QStringLiteral("behind"));
}

SummaryPart aheadString(const QString& gitStatus)
{
    return headerCount(gitStatus, QStringLiteral("ahead"));
}

SummaryPart addedString(const QString& gitStatus)
{
    return makePart(countLinesStartingWith(gitStatus, u"A  "), QStringLiteral("added"));
}

SummaryPart untrackedString(const QString& gitStatus)
{
    return makePart(countLinesStartingWith(gitStatus, u"??"), QStringLiteral("untracked"));
}

SummaryPart stagedString(const QString& gitStatus)
{
    const auto count = countOccurrences(gitStatus, {QStringLiteral("M  "), QStringLiteral("MM ")});
    return makePart(count, QStringLiteral("staged"));
}

SummaryPart removedString(const QString& gitStatus)
{
    return makePart(countLinesStartingWith(gitStatus, u" D"), QStringLiteral("removed"));
}

SummaryPart deletedString(const QString& gitStatus)
{
    return makePart(countLinesStartingWith(gitStatus, u"D  "), QStringLiteral("deleted"));
}

std::optional<QString> statusSummary(const QString& gitStatus)
{
    constexpr std::array partFunctions{changesString,   behindString, aheadString,   addedString,
                                       untrackedString, stagedString, removedString, deletedString};
    QStringList parts;
    for (const auto partFunction : partFunctions) {
        if (const auto text = partFunction(gitStatus))
            parts += *text;
    }
    if (parts.isEmpty())
        return std::nullopt;
    return parts.join(QStringLiteral(", "));
}

QStringList changedFiles(const QString& gitStatus)
{
    QStringList lines = gitStatus.split(u'\n');
    if (lines.size() < 2)
        stopProcess();
    lines.removeFirst();
    lines.removeLast();

    const QString both = QStringLiteral("MM ");
    QStringList otherLines;
    QStringList splitLines;
    for (const QString& line : std::as_const(lines)) {
        if (!line.startsWith(both)) {
            otherLines += line;
            continue;
        }
        splitLines += QString(line).replace(both, QStringLiteral("M  "));
        splitLines += QString(line).replace(both, QStringLiteral(" M "));
    }
    return otherLines + splitLines;
}

} // namespace tarnwick
