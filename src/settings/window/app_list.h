// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace tarnwick {

class ApplicationFolder;

/// The file names of the applications that were installed when the list was created: the system's,
/// then the user's, each sorted by character code. A folder that cannot be read is represented by
/// one text that says so.
class AppList
{
public:
    /// Reads both folders and prints a diagnostic line for each entry.
    AppList(const ApplicationFolder& system, const ApplicationFolder& user);

    [[nodiscard]] const QStringList& list() const { return m_list; }

private:
    QStringList m_list;
};

} // namespace tarnwick
