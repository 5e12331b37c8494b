// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// What only AppKit offers, called through the C interface of the Objective-C runtime. Main thread
/// only, with an application object.
namespace tarnwick::workspace {

/// The bundle identifiers of the user's running applications, once per copy.
[[nodiscard]] QStringList runningApplicationIdentifiers();

/// Makes this application the active one, whatever the user is at.
void activateApplication();

} // namespace tarnwick::workspace
