// SPDX-License-Identifier: MIT
#include "platform/c_strings.h"

#include <utility>

namespace tarnwick {

CStrings::CStrings(QList<QByteArray> texts)
    : m_texts(std::move(texts))
{
    for (QByteArray& text : m_texts)
        m_pointers.push_back(text.data());
    m_pointers.push_back(nullptr);
}

} // namespace tarnwick
