// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace tarnwick {

/// Starts a program that outlives us, in `folder` or else in our own working directory, and does
/// not wait for it. It shares no channel with us: it neither keeps our caller's open nor writes
/// between our lines. False if it cannot be started.
bool startDetached(const QString& program, const QStringList& arguments,
                   const QString& folder = {});

} // namespace tarnwick
