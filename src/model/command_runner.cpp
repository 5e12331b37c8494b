// SPDX-License-Identifier: MIT
#include "model/command_runner.h"

#include "model/diagnostics.h"
#include "model/git_environment.h"
#include "platform/process_tree.h"
#include "platform/program_environment.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QStringDecoder>

#include <csignal>
#include <optional>
#include <utility>

namespace tarnwick {

namespace {

constexpr int noTimeout = -1;

std::optional<QString> decodeUtf8(const QByteArray& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless |
                                                     QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder.decode(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}

/// The diagnostic lines name the programs by these paths wherever they are installed.
void writeCommandLine(const QString& program, const QStringList& arguments)
{
    writeDiagnosticLine(program + u' ' + arguments.join(u' '));
}

} // namespace

CommandRunner::CommandRunner(Programs programs)
    : m_programs(std::move(programs))
    , m_gitEnvironment(entriesOf(gitEnvironment(inheritedEnvironment())))
{}

void CommandRunner::runGit(const QStringList& arguments, std::shared_ptr<RepoViewModel> record,
                           Completion completion) const
{
    writeCommandLine(QStringLiteral("/usr/bin/git"), arguments);

    const auto printed = runToEnd(arguments);
    if (!printed)
        return;

    if (auto output = decodeUtf8(printed->standardOutput)) {
        // Null for a git that hung until after the application object was destroyed.
        if (auto* const application = QCoreApplication::instance()) {
            QMetaObject::invokeMethod(
                application,
                [output = std::move(*output), record = std::move(record),
                 completion = std::move(completion)] { completion(output, *record); },
                Qt::QueuedConnection);
        }
        return;
    }
    if (const auto error = decodeUtf8(printed->standardError)) {
        writeDiagnosticLine(*error);
        completion(QStringLiteral("1?"), *record);
    }
}

std::optional<ProgramOutput> CommandRunner::runToEnd(const QStringList& arguments) const
{
    QMutexLocker lock(&m_mutex);
    if (m_hasEnded)
        return std::nullopt;
    lock.unlock();
    qint64 process = 0;
    auto output =
        runProgram(m_programs.git, arguments, m_gitEnvironment, [this, &process](qint64 started) {
            process = started;
            addRunning(started);
        });
    if (!output)
        stopProcess();
    lock.relock();
    m_running.remove(process);
    return m_hasEnded ? std::nullopt : std::move(output);
}

void CommandRunner::addRunning(qint64 process) const
{
    const QMutexLocker lock(&m_mutex);
    m_running.insert(process);
    if (m_hasEnded)
        ::kill(static_cast<pid_t>(process), SIGKILL);
}

void CommandRunner::endGit()
{
    QMutexLocker lock(&m_mutex);
    m_hasEnded = true;
    const QList<qint64> running = m_running.values();
    lock.unlock();
    endChildren(running);
}

void CommandRunner::runOpen(const QStringList& arguments) const
{
    writeCommandLine(QStringLiteral("/usr/bin/open"), arguments);

    QProcess open;
    open.setProgram(m_programs.open);
    open.setArguments(arguments);
    open.setProcessEnvironment(programEnvironment());
    open.setProcessChannelMode(QProcess::ForwardedChannels);
    open.setInputChannelMode(QProcess::ForwardedInputChannel);
    open.start();
    if (!open.waitForStarted(noTimeout)) {
        writeDiagnosticLine(open.errorString());
        return;
    }
    open.waitForFinished(noTimeout);
}

QString absolutePath(const QString& path)
{
    return path.isEmpty() ? path : QDir::current().absoluteFilePath(path);
}

void revealInFinder(const QString& path, const CommandRunner& runner)
{
    runner.runOpen({QStringLiteral("--reveal"), absolutePath(path)});
}

} // namespace tarnwick
