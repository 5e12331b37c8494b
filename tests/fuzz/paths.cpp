// SPDX-License-Identifier: MIT
#include "fuzz.h"
#include "model/git_quoting.h"

void fuzz(const QByteArray& input)
{
    const QString text = QString::fromUtf8(input);
    require(text.startsWith(u'"') || tarnwick::unquotedGitPath(text) == text);
    QString quoted = QStringLiteral("\"");
    for (const char byte : input)
        quoted += QStringLiteral("\\%1").arg(static_cast<uchar>(byte), 3, 8, QChar(u'0'));
    require(tarnwick::unquotedGitPath(quoted + u'"') == text);
}
