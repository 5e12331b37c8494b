// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tarnwick {

class UpdateSession;

/// What the window says at this stage of a check, in plain text.
struct UpdateWindowTexts
{
    QString heading;
    QString detail;
    /// The button that closes the window.
    QString dismiss;
};

[[nodiscard]] UpdateWindowTexts updateWindowTexts(const UpdateSession& session);

} // namespace tarnwick
