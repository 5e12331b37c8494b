// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QTemporaryFile>

class QUrl;

namespace tarnwick {

/// The last path component of a URL without separators, control characters and leading dots, short
/// enough for every file system. Never empty.
[[nodiscard]] QString safeFileName(const QUrl& url);

/// The path of that name in the folder or, if it exists, of "name (2).ext", "name (3).ext" etc.
[[nodiscard]] QString unusedPath(const QString& folder, const QString& fileName);

/// A file that is being downloaded. Where the file system allows it the file has no name until it
/// is saved. It is removed with this object, and when the process ends in any way.
///
/// Belongs to one thread at a time. After a failure `errorString()` tells the reason.
class PartialFile
{
public:
    /// The folder is created by `open()` if it does not exist.
    explicit PartialFile(const QString& folder);

    [[nodiscard]] bool open();
    [[nodiscard]] bool write(const QByteArray& bytes);
    /// Writes out the buffer; `size()` is right afterwards.
    [[nodiscard]] bool flush();
    [[nodiscard]] qint64 size() const { return m_file.size(); }

    /// Maps the file instead of loading it; blocks while it is read.
    [[nodiscard]] bool isSignedBy(const QByteArray& publicKey, const QByteArray& signature);

    /// Renames it to the name, or to a numbered one if that exists. Its path; empty on failure.
    [[nodiscard]] QString saveAs(const QString& fileName);

    [[nodiscard]] QString errorString() const;

private:
    const QString m_folder;
    QTemporaryFile m_file;
    bool m_isFolderMissing = false;
};

} // namespace tarnwick
