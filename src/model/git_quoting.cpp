// SPDX-License-Identifier: MIT
#include "model/git_quoting.h"

#include <QByteArrayView>

#include <optional>

namespace tarnwick {

namespace {

constexpr qsizetype octalDigits = 3;

/// The byte that the escape sequence at the front of `text` stands for; removes the sequence.
std::optional<char> takeEscaped(QByteArrayView& text)
{
    constexpr QByteArrayView letters = "abtnvfr\"\\";
    constexpr QByteArrayView meanings = "\a\b\t\n\v\f\r\"\\";
    if (text.isEmpty())
        return {};
    if (const auto index = letters.indexOf(text.front()); index >= 0) {
        text = text.sliced(1);
        return meanings[index];
    }
    bool isOctal = false;
    const auto byte =
        text.first(qMin(octalDigits, text.size())).toByteArray().toUShort(&isOctal, 8);
    if (!isOctal || text.size() < octalDigits || byte > 0xff)
        return {};
    text = text.sliced(octalDigits);
    return static_cast<char>(byte);
}

} // namespace

QString unquotedGitPath(const QString& path)
{
    if (path.size() < 2 || !path.startsWith(u'"') || !path.endsWith(u'"'))
        return path;
    const QByteArray quoted = path.sliced(1, path.size() - 2).toUtf8();
    QByteArray bytes;
    for (QByteArrayView rest = quoted; !rest.isEmpty();) {
        const char next = rest.front();
        rest = rest.sliced(1);
        if (next == '"')
            return path; // two paths, as in a rename
        const auto byte = next == '\\' ? takeEscaped(rest) : next;
        if (!byte)
            return path;
        bytes += *byte;
    }
    return QString::fromUtf8(bytes);
}

} // namespace tarnwick
