// SPDX-License-Identifier: MIT
#include "model/remote_address.h"

namespace tarnwick {

std::optional<QString> remoteWebAddress(const QString& text)
{
    if (!text.contains(u"github") && !text.contains(u"gitlab"))
        return std::nullopt;
    return QString(text)
        .remove(u'\n')
        .replace(QStringLiteral("git@"), QStringLiteral("https://"))
        .remove(QStringLiteral(".git"))
        .replace(QStringLiteral("com:"), QStringLiteral("com/"));
}

} // namespace tarnwick
