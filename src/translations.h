// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Shows the texts of the program and of Qt in the first of the user's languages that there is,
/// else in English. Needs the application object, which owns the translations.
void installTranslations();

} // namespace tarnwick
