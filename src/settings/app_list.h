// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace tarnwick {

class ApplicationFolder;

/// The file names of the installed applications as they were when the list was made: the system's,
/// then the user's own, each part sorted by character code. For a folder that cannot be read stands
/// one text that says so.
class AppList
{
public:
    /// Reads both folders, and says on the diagnostic output what it found.
    AppList(const ApplicationFolder& system, const ApplicationFolder& user);

    [[nodiscard]] const QStringList& list() const { return m_list; }

private:
    QStringList m_list;
};

} // namespace tarnwick
