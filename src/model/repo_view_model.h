// SPDX-License-Identifier: MIT
#pragma once

#include "model/git_status.h"
#include "model/project_files.h"
#include "model/repo_link.h"

#include <QImage>
#include <QObject>
#include <QString>
#include <QStringList>

#include <limits>
#include <memory>
#include <optional>
#include <vector>

namespace tarnwick {

class BackgroundQueue;
class CommandRunner;
class PreferencesStore;
class RepoViewModel;
class TerminalLauncher;

/// Whoever shows the records and acts for them.
class RepoViewModelDelegate
{
public:
    virtual ~RepoViewModelDelegate() = default;

    /// Opens a window in which the links of the record's repository are edited.
    virtual void openLinkEditor(const std::shared_ptr<RepoViewModel>& record) = 0;
};

/// What a record works with; all of it outlives every record.
struct RepoServices
{
    const CommandRunner& runner;
    BackgroundQueue& queue;
    TerminalLauncher& terminal;
    const PreferencesStore& store;
};

/// One watched directory and what git last said about it.
///
/// Records are shared by the list, the rows that show them and the queries that run for them, and
/// are replaced, never changed to another directory. Everything happens on the main thread but
/// `refreshStatus()`. Published fields emit on every assignment, equal values included, and keep
/// their last value while a query runs. Failures of git show as empty or absent fields.
class RepoViewModel : public QObject, public std::enable_shared_from_this<RepoViewModel>
{
    Q_OBJECT

public:
    using PP = ProjectFile;

    /// Looks once for a ".git" entry. With one, blocks for two git runs (branch and remote) and
    /// starts another in the background (the status); without one, no git ever runs for this
    /// record.
    [[nodiscard]] static std::shared_ptr<RepoViewModel>
    create(QString dir, std::shared_ptr<RepoViewModelDelegate> delegate, RepoServices services);

    [[nodiscard]] const QString& dir() const { return m_dir; }
    /// The last path component; empty for a path that ends in "/".
    [[nodiscard]] const QString& name() const { return m_name; }
    [[nodiscard]] const std::shared_ptr<RepoViewModelDelegate>& delegate() const
    {
        return m_delegate;
    }
    /// The picture that the repository brings along at its top level, if it can be read, reduced;
    /// see repository_logo.h.
    [[nodiscard]] const std::optional<QImage>& logo() const { return m_logo; }

    [[nodiscard]] bool isRepo() const { return m_isRepo; }
    [[nodiscard]] bool isLoading() const { return m_isLoading; }
    /// Whether a refresh of this record is waiting or running.
    [[nodiscard]] bool isAwaited() const { return m_awaitedQueries > 0; }
    [[nodiscard]] const std::optional<QString>& statusString() const { return m_statusString; }
    [[nodiscard]] const std::optional<QString>& branchString() const { return m_branchString; }
    /// The repository's page in the web; not necessarily a valid address. Learnt once, at creation.
    [[nodiscard]] const std::optional<QString>& remoteUrl() const { return m_remoteUrl; }
    /// The whole output of the last status query.
    [[nodiscard]] const std::optional<QString>& gitStatus() const { return m_gitStatus; }

    /// Blocks for one git run; the branch arrives later.
    void refreshBranch();
    /// Blocks for one git run on whatever thread calls it; its results arrive on the main thread.
    void refreshStatus();
    /// Waits for the end of an earlier query of this record that hangs; see background_queue.h.
    void refreshStatusInBackground();
    /// Makes the record awaited until the opposite call; for who will refresh it later.
    void announceRefresh() { countAwaitedQuery(1); }
    void withdrawAnnouncement() { countAwaitedQuery(-1); }

    // Read from `gitStatus`; see git_status.h.
    [[nodiscard]] SummaryPart changesString() const { return summaryParts(raw()).changes; }
    [[nodiscard]] SummaryPart behindString() const { return summaryParts(raw()).behind; }
    [[nodiscard]] SummaryPart aheadString() const { return summaryParts(raw()).ahead; }
    [[nodiscard]] SummaryPart addedString() const { return summaryParts(raw()).added; }
    [[nodiscard]] SummaryPart untrackedString() const { return summaryParts(raw()).untracked; }
    [[nodiscard]] SummaryPart stagedString() const { return summaryParts(raw()).staged; }
    [[nodiscard]] SummaryPart removedString() const { return summaryParts(raw()).removed; }
    [[nodiscard]] SummaryPart deletedString() const { return summaryParts(raw()).deleted; }
    [[nodiscard]] QStringList
    changedFiles(qsizetype limit = std::numeric_limits<qsizetype>::max()) const;
    [[nodiscard]] qsizetype changedFileCount() const;

    /// Whether the branch is a main line of development, by its name.
    [[nodiscard]] bool isMainBranch() const;

    // Each opens a new terminal window in the directory and returns at once; git runs there, where
    // the user sees it and can answer it.
    void push() const;
    void pull() const;
    void stash() const;
    void startTerminal() const;

    /// Blocks until the directory has been handed to the application of that name.
    void openInApp(const QString& name) const;

    /// Reads the file system at every call; see project_files.h.
    [[nodiscard]] QList<PP> projectFiles() const;
    /// Reads the preferences at every call; see repo_link.h.
    [[nodiscard]] QList<RepoLink> links() const;

    /// Records of one directory are equal.
    friend bool operator==(const RepoViewModel& a, const RepoViewModel& b)
    {
        return a.m_dir == b.m_dir;
    }
    friend std::size_t qHash(const RepoViewModel& record, std::size_t seed = 0)
    {
        return ::qHash(record.m_dir, seed);
    }

Q_SIGNALS:
    void isRepoChanged();
    void isLoadingChanged();
    void isAwaitedChanged();
    void statusStringChanged();
    void branchStringChanged();
    void remoteUrlChanged();

private:
    RepoViewModel(QString dir, std::shared_ptr<RepoViewModelDelegate> delegate,
                  RepoServices services);

    void startQueries();
    void refreshRemoteUrl();
    void applyStatus(const QString& text);
    [[nodiscard]] QString raw() const { return m_gitStatus.value_or(QString()); }

    void countAwaitedQuery(int difference);
    void setIsRepo(bool isRepo);
    void setIsLoading(bool isLoading);
    void setStatusString(std::optional<QString> statusString);
    void setBranchString(QString branchString);
    void setRemoteUrl(QString remoteUrl);

    const QString m_dir;
    const QString m_name;
    const std::shared_ptr<RepoViewModelDelegate> m_delegate;
    const RepoServices m_services;
    const std::optional<QImage> m_logo;

    bool m_isRepo = true;
    bool m_isLoading = false;
    int m_awaitedQueries = 0;
    std::optional<QString> m_statusString;
    std::optional<QString> m_branchString;
    std::optional<QString> m_remoteUrl;
    std::optional<QString> m_gitStatus;
};

using RepoViewModels = std::vector<std::shared_ptr<RepoViewModel>>;

/// Opens one terminal window in which all repositories of the list are fetched; see
/// terminal_request.h. Returns at once.
void fetchAll(const RepoViewModels& models, TerminalLauncher& terminal);

} // namespace tarnwick
