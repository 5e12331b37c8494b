// SPDX-License-Identifier: MIT
#include "platform/regular_file.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick {

namespace {

FileContent failure(const QString& error)
{
    return {std::nullopt, error};
}

FileContent tooLarge(qint64 maxBytes)
{
    return failure(QStringLiteral("more than %1 bytes").arg(maxBytes));
}

} // namespace

FileContent readRegularFile(const QString& path, qint64 maxBytes)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (::stat(name.constData(), &status) != 0)
        return failure(qt_error_string(errno));
    // Opening a device can have effects of its own.
    const QString notRegular = QStringLiteral("not a regular file");
    if (!S_ISREG(status.st_mode))
        return failure(notRegular);
    // Something else may have taken the file's place by now: a pipe must not block us.
    const int descriptor = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return failure(qt_error_string(errno));
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return failure(file.errorString());
    }
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return failure(notRegular);
    if (status.st_size > maxBytes)
        return tooLarge(maxBytes);
    QByteArray bytes = file.read(maxBytes + 1);
    if (file.error() != QFile::NoError)
        return failure(file.errorString());
    // Files that the kernel makes up have no size.
    if (bytes.size() > maxBytes)
        return tooLarge(maxBytes);
    return {std::move(bytes)};
}

} // namespace tarnwick
