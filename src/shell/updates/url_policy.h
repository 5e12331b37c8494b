// SPDX-License-Identifier: MIT
#pragma once

class QUrl;

namespace tarnwick {

/// Whether what is downloaded from this URL cannot have been changed in transit: https, or http
/// from this computer (127.0.0.0/8, ::1, localhost).
[[nodiscard]] bool isTrustedUrl(const QUrl& url);

/// Whether a trusted server at `from` may lead to `to` by a redirect or in a feed: `to` is trusted,
/// and only a server of this computer may lead to a server of this computer.
[[nodiscard]] bool isTrustedTarget(const QUrl& from, const QUrl& to);

/// An http or https URL with a host.
[[nodiscard]] bool isWebPage(const QUrl& url);

/// Opens a web page in the user's browser; ignores any other URL.
void openWebPage(const QUrl& url);

} // namespace tarnwick
