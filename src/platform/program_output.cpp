// SPDX-License-Identifier: MIT
#include "platform/program_output.h"

#include "platform/memory_file.h"

#include <QFile>

#include <cerrno>
#include <csignal>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace tarnwick {

namespace {

/// What a program prints; it need not wait for anybody to read it, nor we for every piece of it.
class Channel
{
public:
    Channel()
        : m_file(openMemoryFile())
    {}
    ~Channel()
    {
        if (m_file >= 0)
            ::close(m_file);
    }
    Channel(const Channel&) = delete;
    Channel& operator=(const Channel&) = delete;

    [[nodiscard]] int descriptor() const { return m_file; }
    [[nodiscard]] QByteArray bytes() const
    {
        struct stat status = {};
        if (::fstat(m_file, &status) != 0)
            return {};
        QByteArray bytes(status.st_size, Qt::Uninitialized);
        qsizetype size = 0;
        while (size < bytes.size()) {
            const auto count = ::pread(m_file, bytes.data() + size,
                                       static_cast<std::size_t>(bytes.size() - size), size);
            if (count <= 0)
                break;
            size += count;
        }
        bytes.truncate(size);
        return bytes;
    }

private:
    const int m_file;
};

/// Null if it cannot be started.
std::optional<pid_t> spawn(const QString& path, const QStringList& arguments,
                           const CStrings& environment, const Channel& output, const Channel& error)
{
    const QByteArray program = QFile::encodeName(path);
    QList<QByteArray> words{program};
    for (const QString& argument : arguments)
        words += QFile::encodeName(argument);

    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, output.descriptor(), STDOUT_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, error.descriptor(), STDERR_FILENO);
    ::posix_spawnattr_init(&attributes);
    sigset_t ignoredByUs;
    sigemptyset(&ignoredByUs);
    sigaddset(&ignoredByUs, SIGPIPE);
    ::posix_spawnattr_setsigdefault(&attributes, &ignoredByUs);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    pid_t child = 0;
    const int failure = ::posix_spawn(&child, program.constData(), &actions, &attributes,
                                      CStrings(words).data(), environment.data());
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&actions);
    return failure == 0 ? std::optional(child) : std::nullopt;
}

} // namespace

CStrings::CStrings(QList<QByteArray> texts)
    : m_texts(std::move(texts))
{
    for (QByteArray& text : m_texts)
        m_pointers.push_back(text.data());
    m_pointers.push_back(nullptr);
}

std::optional<ProgramOutput> runProgram(const QString& path, const QStringList& arguments,
                                        const CStrings& environment,
                                        const std::function<void(qint64)>& started)
{
    const Channel output;
    const Channel error;
    if (output.descriptor() < 0 || error.descriptor() < 0)
        return std::nullopt;
    const auto child = spawn(path, arguments, environment, output, error);
    if (!child)
        return std::nullopt;
    started(*child);
    while (::waitpid(*child, nullptr, 0) < 0 && errno == EINTR) {
    }
    return ProgramOutput{output.bytes(), error.bytes()};
}

} // namespace tarnwick
