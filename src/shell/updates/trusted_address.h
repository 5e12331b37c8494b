// SPDX-License-Identifier: MIT
#pragma once

class QUrl;

namespace tarnwick {

/// Whether what comes from this address cannot have been changed on the way: https or, from this
/// very computer (127.0.0.0/8, ::1, localhost), http.
[[nodiscard]] bool isTrustedAddress(const QUrl& url);

} // namespace tarnwick
