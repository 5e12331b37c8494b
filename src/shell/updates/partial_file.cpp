// SPDX-License-Identifier: MIT
#include "shell/updates/partial_file.h"

#include "shell/updates/safe_file_name.h"
#include "shell/updates/signature.h"

#include <QCoreApplication>
#include <QDir>

namespace tarnwick {

PartialFile::PartialFile(const QString& folder)
    : m_folder(folder)
    , m_file(folder + QStringLiteral("/.tarnwick-update-XXXXXX.part"))
{}

bool PartialFile::open()
{
    m_isFolderMissing = !QDir().mkpath(m_folder);
    return !m_isFolderMissing && m_file.open();
}

bool PartialFile::write(const QByteArray& bytes)
{
    // A full disk takes a part without complaint; only the next try says why.
    for (qint64 written = 0; written < bytes.size();) {
        const qint64 now = m_file.write(bytes.constData() + written, bytes.size() - written);
        if (now <= 0)
            return false;
        written += now;
    }
    return true;
}

bool PartialFile::flush()
{
    return m_file.flush();
}

bool PartialFile::isSignedBy(const QByteArray& publicKey, const QByteArray& signature)
{
    const qint64 length = m_file.size();
    uchar* const bytes = m_file.map(0, length, QFileDevice::MapPrivateOption);
    if (!bytes)
        return false;
    const bool isSigned = tarnwick::isSignedBy(publicKey, signature, bytes, length);
    m_file.unmap(bytes);
    return isSigned;
}

QString PartialFile::keepAs(const QString& fileName)
{
    QString path = unusedPath(m_folder, fileName);
    if (!m_file.rename(path))
        return {};
    m_file.setAutoRemove(false);
    m_file.close();
    return path;
}

QString PartialFile::errorString() const
{
    if (m_isFolderMissing)
        return QCoreApplication::translate("PartialFile", "The folder does not exist.");
    return m_file.errorString();
}

} // namespace tarnwick
