// SPDX-License-Identifier: MIT
#include "platform/login_item_file.h"

#include "platform/durable_file.h"
#include "platform/regular_file.h"

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
    const WriterLock lock(m_path);
    return isWritten() || !replaceFileDurably(m_path, m_content);
}

bool LoginItemFile::isWritten() const
{
    return readRegularFile(m_path, m_content.size()).bytes == m_content;
}

bool LoginItemFile::remove() const
{
    return ::unlink(QFile::encodeName(m_path).constData()) == 0 || errno == ENOENT;
}

} // namespace tarnwick
