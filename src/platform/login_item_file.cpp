// SPDX-License-Identifier: MIT
#include "platform/login_item_file.h"

#include "platform/durable_file.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <unistd.h>

namespace tarnwick {

bool LoginItemFile::write() const
{
    const QFileInfo program(m_program);
    if (!program.isFile() || !program.isExecutable())
        return false;
    return isWritten() || replaceFileDurably(m_path, m_content);
}

bool LoginItemFile::isWritten() const
{
    QFile file(m_path);
    // Anything but a file, which a link may lead to, could keep a reader waiting for ever.
    return QFileInfo(m_path).isFile() && file.open(QIODevice::ReadOnly) &&
           file.readAll() == m_content;
}

bool LoginItemFile::remove() const
{
    return ::unlink(QFile::encodeName(m_path).constData()) == 0 || errno == ENOENT;
}

} // namespace tarnwick
