// SPDX-License-Identifier: MIT
#pragma once

#include "status_notifier_host.h"

#include <QProcess>

namespace tarnwick::bench {

/// A running program with an item in the status bar; ends with the object.
class TrayProgram
{
public:
    /// Returns once the item is shown.
    TrayProgram(StatusNotifierHost& host, const QString& program, const QStringList& arguments);
    ~TrayProgram();

    /// Milliseconds from the start until the item was shown.
    [[nodiscard]] double startTime() const { return m_startTime; }
    /// Clicks the item, so that the menu opens, or closes, and waits a moment.
    void click();
    /// Kilobytes of memory, of which shared pages count in part.
    [[nodiscard]] double proportionalSetSize() const;
    /// Of all threads since they were started.
    [[nodiscard]] double contextSwitches() const;

private:
    StatusNotifierHost& m_host;
    QProcess m_process;
    double m_startTime = 0;
};

} // namespace tarnwick::bench
