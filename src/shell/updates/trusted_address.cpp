// SPDX-License-Identifier: MIT
#include "shell/updates/trusted_address.h"

#include <QHostAddress>
#include <QUrl>

namespace tarnwick {

bool isTrustedAddress(const QUrl& url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    if (url.scheme() == u"https")
        return true;
    return url.scheme() == u"http" &&
           (url.host() == u"localhost" || QHostAddress(url.host()).isLoopback());
}

} // namespace tarnwick
