// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tarnwick {

/// Replaces the file at `path` by `bytes`, all or nothing, readable by its owner only (0600).
///
/// Missing folders above it are made (0700). Where `path` is a symbolic link, the file it leads to
/// is replaced and the link stays. What is no file (a device for example), or a file that we may
/// not write to, is left alone. Returns nothing when content and name have reached the disk, else
/// the reason why they may not have; the file then holds the old content or the new, never a
/// mixture. Blocks on the disk; any thread.
[[nodiscard]] std::optional<QString> replaceFileDurably(const QString& path,
                                                        const QByteArray& bytes);

/// Keeps other processes that hold one from the files of the same folder, from reading a file until
/// it is replaced. Removes the temporary files for `path` that `replaceFileDurably()` left behind
/// when its process was killed. Blocks for up to a second while another process has the lock, and
/// then goes on without it: that is no reason to lose a write.
class WriterLock
{
public:
    explicit WriterLock(const QString& path);
    ~WriterLock();
    Q_DISABLE_COPY_MOVE(WriterLock)

private:
    int m_folder;
};

} // namespace tarnwick
