// SPDX-License-Identifier: MIT
#include "platform/macos/bundle_layout.h"

#include <QDir>

namespace tarnwick::bundleLayout {

QString launcherProgram(const QString& programFolder)
{
    return QDir::cleanPath(programFolder +
                           QStringLiteral("/../Library/LoginItems/TarnwickLauncher.app/"
                                          "Contents/MacOS/TarnwickLauncher"));
}

QStringList startArguments(const QString& launcherProgramFolder)
{
    // TarnwickLauncher.app/Contents/MacOS in Tarnwick.app/Contents/Library/LoginItems.
    return {QStringLiteral("-g"),
            QDir::cleanPath(launcherProgramFolder + QStringLiteral("/../../../../../.."))};
}

} // namespace tarnwick::bundleLayout
