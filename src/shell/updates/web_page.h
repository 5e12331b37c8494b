// SPDX-License-Identifier: MIT
#pragma once

class QUrl;

namespace tarnwick {

[[nodiscard]] bool isWebPage(const QUrl& url);

/// Opens a web page in the user's browser; leaves every other kind of address alone.
void openWebPage(const QUrl& url);

} // namespace tarnwick
