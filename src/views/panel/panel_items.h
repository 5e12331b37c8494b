// SPDX-License-Identifier: MIT
#pragma once

#include "views/panel/app_entry.h"
#include "views/panel/c_button.h"

#include <QPalette>

#include <vector>

namespace tarnwick {

class RepoViewModel;

/// One line of the actions panel.
struct PanelItem
{
    enum class Kind {
        Divider,
        Project,
        Finder,
        Terminal,
        Application,
        Remote,
        Push,
        Pull,
        Stash,
        Link,
        AddLink,
        ChangedFile,
        Overflow
    };

    Kind kind = Kind::Divider;
    CButton button = {};
    /// What the action works on: a path, an address or an application's name.
    QString target = {};

    bool operator==(const PanelItem&) const = default;
};

/// All that the panel of a repository shows now, from top to bottom. Reads the preferences and
/// blocks while it looks for projects; stops the process if the stored links are malformed.
[[nodiscard]] std::vector<PanelItem>
panelItems(const RepoViewModel& vm, const QList<AppEntry>& appEntries, const QPalette& palette);

} // namespace tarnwick
