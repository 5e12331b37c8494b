// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>

namespace tarnwick {

/// What the program was told about itself when it was packaged, under the keys of an application
/// bundle's information dictionary: "CFBundleIdentifier", "CFBundleVersion" (the build number),
/// "CFBundleShortVersionString", "SUFeedURL", "SUPublicEDKey". All values are texts.
class BundleInfo
{
public:
    explicit BundleInfo(QJsonObject values)
        : m_values(std::move(values))
    {}

    /// Empty where there is no such text.
    [[nodiscard]] QString text(const QString& key) const { return m_values.value(key).toString(); }
    /// Stops the process where there is no such text: the packaging is broken.
    [[nodiscard]] QString requiredText(const QString& key) const;

private:
    QJsonObject m_values;
};

/// The text without control, format, private-use and unassigned characters and line breaks, which
/// could make a version look like something else.
[[nodiscard]] QString printableText(const QString& text);

} // namespace tarnwick
