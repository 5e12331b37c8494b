// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace tarnwick {

/// The web page of a repository, made from its remote's address as git's configuration has it. Only
/// text is replaced, tuned to "git@host.com:owner/repo.git"; the result for other addresses may be
/// no web address. Nothing for hosts other than GitHub and GitLab.
[[nodiscard]] std::optional<QString> remoteWebAddress(const QString& text);

} // namespace tarnwick
