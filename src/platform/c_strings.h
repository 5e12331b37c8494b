// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

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

} // namespace tarnwick
