// SPDX-License-Identifier: MIT
#pragma once

#include "platform/application_folder.h"

namespace tarnwick {

/// A real folder in which each application is a file or a folder of its own.
class PlainApplicationFolder : public ApplicationFolder
{
public:
    /// The path ends in "/".
    explicit PlainApplicationFolder(QString path)
        : m_path(std::move(path))
    {}

    [[nodiscard]] QString path() const override { return m_path; }
    [[nodiscard]] std::optional<QStringList> entries() const override;
    [[nodiscard]] bool contains(const QString& name) const override;
    [[nodiscard]] QIcon icon(const QString& name) const override;

private:
    const QString m_path;
};

} // namespace tarnwick
