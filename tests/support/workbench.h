// SPDX-License-Identifier: MIT
#pragma once

#include "model/background_queue.h"
#include "model/command_runner.h"
#include "model/preferences_store.h"
#include "model/refresh_queue.h"
#include "model/repo_view_model.h"
#include "platform/terminal_launcher.h"

#include <QTemporaryDir>

namespace tarnwick::test {

struct RecordingTerminal : TerminalLauncher
{
    void open(const TerminalRequest& request) override { requests += request; }

    QList<TerminalRequest> requests;
};

struct NoDelegate : RepoViewModelDelegate
{
    void openLinkEditor(const std::shared_ptr<RepoViewModel>&) override {}
};

/// All that records need: real git and real preferences, but a terminal that only takes note.
struct Workbench
{
    [[nodiscard]] RepoServices services() { return {runner, queue, terminal, store}; }
    [[nodiscard]] std::shared_ptr<RepoViewModel>
    record(const QString& dir, std::shared_ptr<RepoViewModelDelegate> delegate = {})
    {
        return RepoViewModel::create(dir, std::move(delegate), services());
    }

    QTemporaryDir folder;
    PreferencesStore store{folder.filePath(QStringLiteral("preferences.json"))};
    RecordingTerminal terminal;
    CommandRunner runner{{}};
    BackgroundQueue queue;
    RefreshQueue refreshQueue;
};

} // namespace tarnwick::test
