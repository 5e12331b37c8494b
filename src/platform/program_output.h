// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace tarnwick {

/// Texts as the null-terminated list of C strings that the system takes as arguments or environment
/// of a program.
class CStrings
{
public:
    explicit CStrings(QList<QByteArray> texts);
    CStrings(const CStrings&) = delete;
    CStrings& operator=(const CStrings&) = delete;

    [[nodiscard]] char* const* data() const { return m_pointers.data(); }

private:
    QList<QByteArray> m_texts;
    std::vector<char*> m_pointers;
};

struct ProgramOutput
{
    QByteArray standardOutput;
    QByteArray standardError;
};

/// Runs a program with this environment and our standard input until it has exited, and returns
/// what it has printed; null if it cannot be started. Programs that it leaves behind are not waited
/// for. `started` is called with the process number as soon as there
/// is one.
///
/// Blocks without a timeout; any thread. What `QProcess` does for programs that are talked to makes
/// each of the hundreds of short queries a tenth dearer.
[[nodiscard]] std::optional<ProgramOutput> runProgram(const QString& path,
                                                      const QStringList& arguments,
                                                      const CStrings& environment,
                                                      const std::function<void(qint64)>& started);

} // namespace tarnwick
