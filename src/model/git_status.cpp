// SPDX-License-Identifier: MIT
#include "model/git_status.h"

#include "model/diagnostics.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace tarnwick {

namespace {

constexpr QChar noBreakSpace(u'\u00A0');

QString trimmedOfBlanks(const QString& piece)
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

std::optional<QString> part(qsizetype count, const QString& word)
{
    if (count == 0)
        return std::nullopt;
    return QString::number(count) + noBreakSpace + word;
}

qsizetype occurrences(const QString& gitStatus, const QStringList& codes)
{
    return components2(gitStatus, codes).size() - 1;
}

qsizetype linesStartingWith(const QString& gitStatus, QStringView code)
{
    const auto lines = QStringView(gitStatus).split(u'\n', Qt::SkipEmptyParts);
    return std::count_if(lines.cbegin(), lines.cend(),
                         [code](QStringView line) { return line.startsWith(code); });
}

/// The header counts commits as in "[ahead 2, behind 1]".
std::optional<QString> headerCount(const QString& gitStatus, const QString& word)
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
        QStringList finer;
        for (const QString& piece : std::as_const(pieces))
            finer += piece.split(separator);
        pieces = std::move(finer);
    }
    std::transform(pieces.cbegin(), pieces.cend(), pieces.begin(), trimmedOfBlanks);
    return pieces;
}

std::optional<QString> changesString(const QString& gitStatus)
{
    const auto count = occurrences(gitStatus, {QStringLiteral(" M "), QStringLiteral("MM ")});
    return part(count, count == 1 ? QStringLiteral("change") : QStringLiteral("changes"));
}

std::optional<QString> behindString(const QString& gitStatus)
{
    return headerCount(gitStatus, QStringLiteral("behind"));
}

std::optional<QString> aheadString(const QString& gitStatus)
{
    return headerCount(gitStatus, QStringLiteral("ahead"));
}

std::optional<QString> addedString(const QString& gitStatus)
{
    return part(linesStartingWith(gitStatus, u"A  "), QStringLiteral("added"));
}

std::optional<QString> untrackedString(const QString& gitStatus)
{
    return part(linesStartingWith(gitStatus, u"??"), QStringLiteral("untracked"));
}

std::optional<QString> stagedString(const QString& gitStatus)
{
    const auto count = occurrences(gitStatus, {QStringLiteral("M  "), QStringLiteral("MM ")});
    return part(count, QStringLiteral("staged"));
}

std::optional<QString> removedString(const QString& gitStatus)
{
    return part(linesStartingWith(gitStatus, u" D"), QStringLiteral("removed"));
}

std::optional<QString> deletedString(const QString& gitStatus)
{
    return part(linesStartingWith(gitStatus, u"D  "), QStringLiteral("deleted"));
}

std::optional<QString> statusSummary(const QString& gitStatus)
{
    constexpr std::array parts{changesString,   behindString, aheadString,   addedString,
                               untrackedString, stagedString, removedString, deletedString};
    QStringList applying;
    for (const auto partOf : parts) {
        if (const auto text = partOf(gitStatus))
            applying += *text;
    }
    if (applying.isEmpty())
        return std::nullopt;
    return applying.join(QStringLiteral(", "));
}

QStringList changedFiles(const QString& gitStatus)
{
    QStringList lines = gitStatus.split(u'\n');
    if (lines.size() < 2)
        stopProcess();
    lines.removeFirst();
    lines.removeLast();

    const QString both = QStringLiteral("MM ");
    QStringList unsplit;
    QStringList halves;
    for (const QString& line : std::as_const(lines)) {
        if (!line.startsWith(both)) {
            unsplit += line;
            continue;
        }
        halves += QString(line).replace(both, QStringLiteral("M  "));
        halves += QString(line).replace(both, QStringLiteral(" M "));
    }
    return unsplit + halves;
}

} // namespace tarnwick
