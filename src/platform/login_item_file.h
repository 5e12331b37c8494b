// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace tarnwick {

/// A file of the user's by which the system starts a program of ours at login. Any thread.
class LoginItemFile
{
public:
    /// `program` is the absolute path of what `content` has started.
    LoginItemFile(QString path, QString program, QByteArray content)
        : m_path(std::move(path))
        , m_program(std::move(program))
        , m_content(std::move(content))
    {}

    /// Puts the file there, all or nothing; one that is there already and says the same is left
    /// untouched, any other is replaced, also one that is switched off. A symbolic link stays, and
    /// what it leads to is replaced. False if that failed, or if there is no such program.
    [[nodiscard]] bool write() const;
    /// True if the file is gone afterwards, also if there was none.
    [[nodiscard]] bool remove() const;

private:
    [[nodiscard]] bool isWritten() const;

    const QString m_path;
    const QString m_program;
    const QByteArray m_content;
};

} // namespace tarnwick
