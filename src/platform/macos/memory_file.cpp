// SPDX-License-Identifier: MIT
#include "platform/memory_file.h"

#include <QDir>
#include <QFile>

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace tarnwick {

int openMemoryFile()
{
    QByteArray path = QFile::encodeName(QDir::tempPath() + QStringLiteral("/tarnwick.XXXXXX"));
    const int file = ::mkostemp(path.data(), O_CLOEXEC);
    if (file >= 0)
        ::unlink(path.constData());
    return file;
}

} // namespace tarnwick
