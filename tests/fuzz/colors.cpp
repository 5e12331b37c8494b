// SPDX-License-Identifier: MIT
#include "views/colors.h"

#include "fuzz.h"

#include <QRegularExpression>

void fuzz(const QByteArray& input)
{
    static const QRegularExpression digits(QStringLiteral("^([0-9A-Fa-f]{3}){1,2}\\z"));
    const QString text = QString::fromUtf8(input);
    const QColor color = tarnwick::colorFromHex(text);
    require(!text.contains(digits) || color == QColor(u'#' + text));
}
