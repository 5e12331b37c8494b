// SPDX-License-Identifier: MIT
#pragma once

#include "platform/program_output.h"

#include <QMutex>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace tarnwick {

class RepoViewModel;

/// Starts external programs, without a shell in between and without a working directory of their
/// own. Failures of the programs themselves show only in what they print: exit statuses are never
/// looked at. Calls from several threads are independent.
class CommandRunner
{
public:
    /// Absolute paths of the two programs that are ever started.
    struct Programs
    {
        QString git = QStringLiteral("/usr/bin/git");
        /// Opens a directory in an application, or shows a file in the file manager.
        QString open = {};
    };

    /// Receives what git printed, untrimmed, and the record on whose behalf it ran.
    using Completion = std::function<void(const QString& output, RepoViewModel& record)>;

    /// Every git gets the environment that the process has now.
    explicit CommandRunner(Programs programs);

    /// Blocks the calling thread until git has exited; there is no time-out. The completion then
    /// runs later on the main thread, and the record is kept alive until it has run.
    ///
    /// Output that is not UTF-8 makes the completion run at once on the calling thread with the
    /// text "1?"; if the error output is not UTF-8 either, the completion never runs. A git that
    /// cannot be started ends the process.
    void runGit(const QStringList& arguments, std::shared_ptr<RepoViewModel> record,
                Completion completion) const;

    /// Ends every git that runs and all that it has started, so that nothing outlives the program;
    /// from now on `runGit()` does nothing. Any thread; see process_tree.h.
    void endGit();

    /// Blocks the calling thread until the program has exited. Its channels are ours. If it cannot
    /// be started, one diagnostic line says why.
    void runOpen(const QStringList& arguments) const;

private:
    /// Null if `endGit()` was called before or meanwhile.
    [[nodiscard]] std::optional<ProgramOutput> runToEnd(const QStringList& arguments) const;
    void addRunning(qint64 process) const;

    const Programs m_programs;
    const CStrings m_gitEnvironment;
    mutable QMutex m_mutex;
    mutable QSet<qint64> m_running;
    bool m_hasEnded = false;
};

/// `path` for programs that may run in another working directory. Only a relative path is changed;
/// an empty one stays empty.
[[nodiscard]] QString absolutePath(const QString& path);

/// Blocks until the file manager has been asked to show the file or folder, selected.
void revealInFinder(const QString& path, const CommandRunner& runner);

} // namespace tarnwick
