// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// Where things are in the application's bundle. A program folder is the "Contents/MacOS" of the
/// bundle that a program is in, without a "/" at its end.
namespace tarnwick::bundleLayout {

/// The launcher helper's program, which is in a bundle of its own within the application's.
[[nodiscard]] QString launcherProgram(const QString& programFolder);

/// What /usr/bin/open is given to start the application that the launcher is in, without taking the
/// keyboard from the user.
[[nodiscard]] QStringList startArguments(const QString& launcherProgramFolder);

} // namespace tarnwick::bundleLayout
