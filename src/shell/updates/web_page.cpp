// SPDX-License-Identifier: MIT
#include "shell/updates/web_page.h"

#include <QDesktopServices>
#include <QUrl>

namespace tarnwick {

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
