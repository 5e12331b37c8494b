// SPDX-License-Identifier: MIT
#include "shell/updates/url_policy.h"

#include <QDesktopServices>
#include <QHostAddress>
#include <QUrl>

namespace tarnwick {

namespace {

/// More than the loopback addresses: 0.0.0.0, :: and all names below "localhost" lead here, too.
bool isThisComputer(QString host)
{
    if (host.endsWith(u'.'))
        host.chop(1);
    const QHostAddress address(host);
    return host == u"localhost" || host.endsWith(u".localhost") || address.isLoopback() ||
           address.isEqual(QHostAddress(QHostAddress::AnyIPv4), QHostAddress::TolerantConversion);
}

} // namespace

bool isTrustedUrl(const QUrl& url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    if (url.scheme() == u"https")
        return true;
    return url.scheme() == u"http" &&
           (url.host() == u"localhost" || QHostAddress(url.host()).isLoopback());
}

bool isTrustedTarget(const QUrl& from, const QUrl& to)
{
    return isTrustedUrl(to) && (isThisComputer(from.host()) || !isThisComputer(to.host()));
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
