// SPDX-License-Identifier: MIT
#include "shell/updates/version_comparison.h"

#include <QList>

#include <algorithm>

namespace tarnwick {

namespace {

bool isDigit(QChar letter)
{
    return letter >= u'0' && letter <= u'9';
}

QStringView withoutLeadingZeros(QStringView digits)
{
    while (digits.size() > 1 && digits.front() == u'0')
        digits = digits.mid(1);
    return digits;
}

QList<QStringView> partsOf(QStringView version)
{
    QList<QStringView> parts;
    for (qsizetype begin = 0; begin < version.size();) {
        const bool number = isDigit(version[begin]);
        qsizetype end = begin;
        while (end < version.size() && version[end].isLetterOrNumber() &&
               isDigit(version[end]) == number)
            ++end;
        if (end > begin) {
            const QStringView part = version.mid(begin, end - begin);
            parts += number ? withoutLeadingZeros(part) : part;
        }
        begin = std::max(end, begin + 1);
    }
    return parts;
}

std::weak_ordering compareParts(QStringView left, QStringView right)
{
    const bool leftIsNumber = isDigit(left.front());
    const bool rightIsNumber = isDigit(right.front());
    if (leftIsNumber != rightIsNumber)
        return leftIsNumber <=> rightIsNumber;
    if (leftIsNumber && left.size() != right.size())
        return left.size() <=> right.size();
    return left.compare(right, Qt::CaseInsensitive) <=> 0;
}

} // namespace

std::weak_ordering compareVersions(QStringView left, QStringView right)
{
    const QList<QStringView> leftParts = partsOf(left);
    const QList<QStringView> rightParts = partsOf(right);
    for (qsizetype i = 0; i < std::max(leftParts.size(), rightParts.size()); ++i) {
        const auto order = compareParts(leftParts.value(i, u"0"), rightParts.value(i, u"0"));
        if (order != std::weak_ordering::equivalent)
            return order;
    }
    return std::weak_ordering::equivalent;
}

} // namespace tarnwick
