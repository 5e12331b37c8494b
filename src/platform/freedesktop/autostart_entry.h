// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tarnwick {

/// A program of ours that the desktop starts at login: a file in the user's autostart folder. It is
/// shown to the user, who may switch it off, under the name of the application. Any thread.
class AutostartEntry
{
public:
    /// `identifier` names the file; `program` is the absolute path of what is started.
    AutostartEntry(const QString& folder, const QString& identifier, QString program);

    /// Puts the entry there, all or nothing; one that is there already and says the same is left
    /// untouched, any other is replaced, also one that is switched off. A symbolic link stays, and
    /// what it leads to is replaced. False if that failed, or if there is no such program.
    [[nodiscard]] bool write() const;
    /// True if the entry is gone afterwards, also if there was none.
    [[nodiscard]] bool remove() const;

private:
    [[nodiscard]] bool isWritten() const;
    [[nodiscard]] QByteArray content() const;

    QString m_path;
    QString m_program;
};

} // namespace tarnwick
