// SPDX-License-Identifier: MIT
#include "platform/durable_file.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QThread>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tarnwick {

namespace {

constexpr auto ownerOnlyFolder =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;

QString systemError()
{
    return qt_error_string(errno);
}

QFileInfo linkTarget(const QString& path)
{
    QFileInfo file(path);
    for (int links = 0; file.isSymLink() && links < 40; ++links)
        file.setFile(file.symLinkTarget());
    return file;
}

/// Hidden, and like no name that a person would give to a copy of the file.
QString temporaryPrefix(const QFileInfo& target)
{
    return u'.' + target.fileName() + QStringLiteral(".unfinished-");
}

int openFolder(const QString& folder)
{
    return ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

bool syncFolder(const QString& folder)
{
    const int descriptor = openFolder(folder);
    if (descriptor < 0)
        return false;
    // Some network file systems have nothing to sync for a folder and say so with EINVAL.
    const bool synced = ::fsync(descriptor) == 0 || errno == EINVAL;
    ::close(descriptor);
    return synced;
}

bool makeFolder(const QString& folder)
{
    if (QFileInfo(folder).isDir())
        return true;
    const QString parent = QFileInfo(folder).absolutePath();
    if (parent == folder || !makeFolder(parent))
        return false;
    if (!QDir().mkdir(folder, ownerOnlyFolder))
        return QFileInfo(folder).isDir(); // somebody else was faster
    return syncFolder(parent);
}

/// QTemporaryFile makes it 0600 and removes it unless it got its name.
std::optional<QString> writeAndRename(const QFileInfo& target, const QByteArray& bytes)
{
    QTemporaryFile file(target.absolutePath() + u'/' + temporaryPrefix(target) +
                        QStringLiteral("XXXXXX"));
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush())
        return file.errorString();
    const QByteArray from = QFile::encodeName(file.fileName());
    const QByteArray to = QFile::encodeName(target.absoluteFilePath());
    if (::fsync(file.handle()) != 0 || std::rename(from.constData(), to.constData()) != 0)
        return systemError();
    file.setAutoRemove(false);
    return {};
}

void removeTemporaryFiles(const QFileInfo& target)
{
    const QDir folder = target.absoluteDir();
    for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks)) {
        if (name.startsWith(temporaryPrefix(target)))
            QFile::remove(folder.filePath(name));
    }
}

} // namespace

std::optional<QString> replaceFileDurably(const QString& path, const QByteArray& bytes)
{
    const QFileInfo target = linkTarget(path);
    if (target.exists() && !target.isFile()) // a device, say: root would put a file in its place
        return QStringLiteral("not a regular file");
    const QString folder = target.absolutePath();
    errno = 0;
    if (!makeFolder(folder))
        return systemError();
    const QByteArray name = QFile::encodeName(target.absoluteFilePath());
    if (target.exists() && ::access(name.constData(), W_OK) != 0)
        return systemError();
    if (auto error = writeAndRename(target, bytes))
        return error;
    return syncFolder(folder) ? std::nullopt : std::optional(systemError());
}

WriterLock::WriterLock(const QString& path)
{
    const QFileInfo target = linkTarget(path);
    m_folder = openFolder(target.absolutePath());
    // The system takes the lock back when the process is gone.
    for (int attempt = 0; attempt < 100; ++attempt) {
        if (::flock(m_folder, LOCK_EX | LOCK_NB) == 0) {
            removeTemporaryFiles(target);
            return;
        }
        if (errno != EWOULDBLOCK)
            return;
        QThread::msleep(10);
    }
}

WriterLock::~WriterLock()
{
    if (m_folder >= 0)
        ::close(m_folder);
}

} // namespace tarnwick
