// SPDX-License-Identifier: MIT
#include "model/repo_view_model.h"

#include "model/background_queue.h"
#include "model/command_runner.h"
#include "model/diagnostics.h"
#include "model/preference_keys.h"
#include "model/preferences_store.h"
#include "model/remote_address.h"
#include "model/repository_logo.h"
#include "model/terminal_request.h"

#include <QFileInfo>
#include <QThread>

namespace tarnwick {

namespace {

/// The last holder of a record may be a worker thread that has just finished its query.
void destroyOnItsThread(RepoViewModel* record)
{
    if (QThread::currentThread() == record->thread())
        delete record;
    else
        record->deleteLater();
}

} // namespace

std::shared_ptr<RepoViewModel>
RepoViewModel::create(QString dir, std::shared_ptr<RepoViewModelDelegate> delegate,
                      RepoServices services)
{
    std::shared_ptr<RepoViewModel> record(
        new RepoViewModel(std::move(dir), std::move(delegate), services), destroyOnItsThread);
    record->startQueries();
    return record;
}

RepoViewModel::RepoViewModel(QString dir, std::shared_ptr<RepoViewModelDelegate> delegate,
                             RepoServices services)
    : m_dir(std::move(dir))
    , m_name(m_dir.split(u'/').constLast())
    , m_delegate(std::move(delegate))
    , m_services(services)
    , m_logo(readRepositoryLogo(m_dir + QStringLiteral("/TarnwickLogo.png")))
{}

void RepoViewModel::startQueries()
{
    if (!QFileInfo::exists(m_dir + QStringLiteral("/.git"))) {
        writeDiagnosticLine(QStringLiteral("nmot repo"));
        setIsRepo(false);
        return;
    }
    setIsRepo(true);
    refreshStatusInBackground();
    refreshBranch();
    if (m_isRepo)
        refreshRemoteUrl();
}

void RepoViewModel::refreshBranch()
{
    if (!m_isRepo)
        return;
    m_services.runner.runGit({QStringLiteral("-C"), m_dir, QStringLiteral("rev-parse"),
                              QStringLiteral("--symbolic-full-name"),
                              QStringLiteral("--abbrev-ref"), QStringLiteral("HEAD")},
                             shared_from_this(), [](const QString& output, RepoViewModel& record) {
                                 record.setBranchString(QString(output).remove(u'\n'));
                             });
}

void RepoViewModel::refreshRemoteUrl()
{
    m_services.runner.runGit({QStringLiteral("-C"), m_dir, QStringLiteral("config"),
                              QStringLiteral("--get"), QStringLiteral("remote.origin.url")},
                             shared_from_this(), [](const QString& output, RepoViewModel& record) {
                                 if (auto address = remoteWebAddress(output))
                                     record.setRemoteUrl(*std::move(address));
                             });
}

void RepoViewModel::refreshStatus()
{
    const auto self = shared_from_this();
    QMetaObject::invokeMethod(
        this, [self] { self->setIsLoading(true); }, Qt::QueuedConnection);
    m_services.runner.runGit(
        {QStringLiteral("-C"), m_dir, QStringLiteral("status"), QStringLiteral("-sb")}, self,
        [self](const QString& output, RepoViewModel& record) {
            // The runner may call from the worker thread; the fields belong to the main thread.
            QMetaObject::invokeMethod(&record, [self, output] { self->applyStatus(output); });
        });
}

void RepoViewModel::refreshStatusInBackground()
{
    if (!m_isRepo)
        return;
    countAwaitedQuery(1);
    // The queue may drop the job for a later one.
    const std::shared_ptr<void> awaited(nullptr, [self = shared_from_this()](void*) {
        QMetaObject::invokeMethod(
            self.get(), [self] { self->countAwaitedQuery(-1); }, Qt::QueuedConnection);
    });
    m_services.queue.post([self = shared_from_this(), awaited] { self->refreshStatus(); }, this);
}

void RepoViewModel::applyStatus(const QString& text)
{
    m_gitStatus = text;
    setStatusString(statusSummary(text));
    setIsLoading(false);
}

void RepoViewModel::countAwaitedQuery(int difference)
{
    m_awaitedQueries += difference;
    Q_EMIT isAwaitedChanged();
}

QStringList RepoViewModel::changedFiles(qsizetype limit) const
{
    return m_gitStatus ? tarnwick::changedFiles(*m_gitStatus, limit) : QStringList();
}

qsizetype RepoViewModel::changedFileCount() const
{
    return m_gitStatus ? tarnwick::changedFileCount(*m_gitStatus) : 0;
}

void RepoViewModel::push() const
{
    m_services.terminal.open(terminalRequest(absolutePath(m_dir), QStringLiteral("push")));
}

void RepoViewModel::pull() const
{
    m_services.terminal.open(terminalRequest(absolutePath(m_dir), QStringLiteral("pull")));
}

void RepoViewModel::stash() const
{
    m_services.terminal.open(terminalRequest(absolutePath(m_dir), QStringLiteral("stash")));
}

void RepoViewModel::startTerminal() const
{
    m_services.terminal.open(terminalRequest(absolutePath(m_dir), {}));
}

void RepoViewModel::openInApp(const QString& name) const
{
    m_services.runner.runOpen({QStringLiteral("-a"), name, absolutePath(m_dir)});
}

QList<RepoViewModel::PP> RepoViewModel::projectFiles() const
{
    return tarnwick::projectFiles(m_dir);
}

QList<RepoLink> RepoViewModel::links() const
{
    return parseRepoLinks(
        m_services.store.stringForKey(preferences::linksKey(m_name)).value_or(QString()));
}

bool RepoViewModel::isMainBranch() const
{
    return m_branchString == QStringLiteral("master") ||
           m_branchString == QStringLiteral("develop") || m_branchString == QStringLiteral("main");
}

void RepoViewModel::setIsRepo(bool isRepo)
{
    m_isRepo = isRepo;
    Q_EMIT isRepoChanged();
}

void RepoViewModel::setIsLoading(bool isLoading)
{
    m_isLoading = isLoading;
    Q_EMIT isLoadingChanged();
}

void RepoViewModel::setStatusString(std::optional<QString> statusString)
{
    m_statusString = std::move(statusString);
    Q_EMIT statusStringChanged();
}

void RepoViewModel::setBranchString(QString branchString)
{
    m_branchString = std::move(branchString);
    Q_EMIT branchStringChanged();
}

void RepoViewModel::setRemoteUrl(QString remoteUrl)
{
    m_remoteUrl = std::move(remoteUrl);
    Q_EMIT remoteUrlChanged();
}

void fetchAll(const RepoViewModels& models, TerminalLauncher& terminal)
{
    QStringList dirs;
    for (const auto& record : models) {
        if (record->isRepo())
            dirs += absolutePath(record->dir());
    }
    terminal.open(fetchAllRequest(dirs));
}

} // namespace tarnwick
