// SPDX-License-Identifier: MIT
#include "platform/plain_application_folder.h"

#include <QDir>
#include <QFileIconProvider>

namespace tarnwick {

std::optional<QStringList> PlainApplicationFolder::entries() const
{
    const QDir folder(m_path);
    if (!folder.isReadable())
        return std::nullopt;
    return folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                            QDir::Unsorted);
}

bool PlainApplicationFolder::contains(const QString& name) const
{
    return QFileInfo::exists(m_path + name);
}

QIcon PlainApplicationFolder::icon(const QString& name) const
{
    return contains(name) ? QFileIconProvider().icon(QFileInfo(m_path + name)) : QIcon();
}

} // namespace tarnwick
