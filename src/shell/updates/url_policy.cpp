// SPDX-License-Identifier: MIT
#include "shell/updates/url_policy.h"

#include <QDesktopServices>
#include <QHostAddress>
#include <QUrl>

namespace tarnwick {

bool isTrustedUrl(const QUrl& url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    if (url.scheme() == u"https")
        return true;
    return url.scheme() == u"http" &&
           (url.host() == u"localhost" || QHostAddress(url.host()).isLoopback());
}

bool isWebPage(const QUrl& url)
{
    return (url.scheme() == u"https" || url.scheme() == u"http") && !url.host().isEmpty();
}

void openWebPage(const QUrl& url)
{
    if (isWebPage(url))
        QDesktopServices::openUrl(url);
}

} // namespace tarnwick
