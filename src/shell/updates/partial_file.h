// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QTemporaryFile>

namespace tarnwick {

/// A file that is being downloaded. Until it is kept it has no name in its folder, where the file
/// system allows that, and goes with this object or with the process, however that ends.
///
/// Belongs to one thread at a time. After a failure `errorString()` tells the reason.
class PartialFile
{
public:
    /// The folder is made when it is missing.
    explicit PartialFile(const QString& folder);

    [[nodiscard]] bool open();
    [[nodiscard]] bool write(const QByteArray& bytes);
    /// Brings to the file what has been written, after which its size can be relied on.
    [[nodiscard]] bool flush();
    [[nodiscard]] qint64 size() const { return m_file.size(); }

    /// Reads the file from end to end, without taking it into memory as a whole.
    [[nodiscard]] bool isSignedBy(const QByteArray& publicKey, const QByteArray& signature);

    /// Gives it the name, or a similar one where that is taken. Its path; empty on failure.
    [[nodiscard]] QString keepAs(const QString& fileName);

    [[nodiscard]] QString errorString() const;

private:
    const QString m_folder;
    QTemporaryFile m_file;
    bool m_isFolderMissing = false;
};

} // namespace tarnwick
