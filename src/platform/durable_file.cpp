// SPDX-License-Identifier: MIT
#include "platform/durable_file.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace tarnwick {

namespace {

constexpr auto ownerOnlyFile = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
constexpr auto ownerOnlyFolder = ownerOnlyFile | QFileDevice::ExeOwner;

QFileInfo linkTarget(const QString& path)
{
    QFileInfo file(path);
    for (int links = 0; file.isSymLink() && links < 40; ++links)
        file.setFile(file.symLinkTarget());
    return file;
}

bool syncFolder(const QString& folder)
{
    const int descriptor =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
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

} // namespace

bool replaceFileDurably(const QString& path, const QByteArray& bytes)
{
    const QFileInfo target = linkTarget(path);
    if (target.exists() && !target.isFile()) // a device, say: root would put a file in its place
        return false;
    const QString folder = target.absolutePath();
    if (!makeFolder(folder))
        return false;
    QSaveFile file(target.absoluteFilePath());
    return file.open(QIODevice::WriteOnly) && file.setPermissions(ownerOnlyFile) &&
           file.write(bytes) == bytes.size() && file.flush() &&
           ::fsync(file.handle()) == 0 // commit() syncs too, but ignores a failure
           && file.commit() && syncFolder(folder);
}

} // namespace tarnwick
