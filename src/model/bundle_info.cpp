// SPDX-License-Identifier: MIT
#include "model/bundle_info.h"

#include "model/diagnostics.h"

namespace tarnwick {

QString BundleInfo::requiredText(const QString& key) const
{
    const QJsonValue value = m_values.value(key);
    if (!value.isString())
        stopProcess();
    return value.toString();
}

QString printableText(const QString& text)
{
    QString printable;
    for (const char32_t character : text.toUcs4()) {
        if (QChar::isPrint(character) && character != QChar::LineSeparator &&
            character != QChar::ParagraphSeparator)
            printable += QChar::fromUcs4(character);
    }
    return printable;
}

} // namespace tarnwick
