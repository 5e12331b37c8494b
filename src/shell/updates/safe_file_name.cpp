// SPDX-License-Identifier: MIT
#include "shell/updates/safe_file_name.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>

namespace tarnwick {

namespace {

/// Leaves room for a number within the 255 bytes that file systems allow.
constexpr qsizetype mostBytes = 200;
constexpr qsizetype longestSuffix = 20;
/// Of more letters only the last are looked at: to shorten a name takes the square of its length.
constexpr qsizetype mostLetters = 1000;

bool isUnsafe(QChar letter)
{
    static const QString reserved = QStringLiteral(":*?\"<>|");
    return !letter.isPrint() || reserved.contains(letter);
}

struct NameParts
{
    QString stem;
    /// With its dot.
    QString suffix;
};

/// "tar.gz" and the like are one suffix.
NameParts partsOf(const QString& name)
{
    qsizetype dot = name.lastIndexOf(u'.');
    if (dot > 4 && QStringView(name).left(dot).endsWith(u".tar"))
        dot -= 4;
    if (dot <= 0 || name.size() - dot > longestSuffix)
        return {name, {}};
    return {name.left(dot), name.mid(dot)};
}

QString shortened(const QString& name)
{
    auto [stem, suffix] = partsOf(name);
    while (stem.toUtf8().size() + suffix.toUtf8().size() > mostBytes)
        stem.chop(1);
    return stem + suffix;
}

} // namespace

QString safeFileName(const QUrl& url)
{
    QString name = url.path(QUrl::FullyDecoded);
    name.replace(u'\\', u'/');
    name = name.section(u'/', -1).right(mostLetters);
    name.erase(std::remove_if(name.begin(), name.end(), isUnsafe), name.end());
    while (name.startsWith(u'.') || name.startsWith(u' '))
        name.remove(0, 1);
    while (name.endsWith(u'.') || name.endsWith(u' '))
        name.chop(1);
    return name.isEmpty() ? QStringLiteral("Tarnwick update") : shortened(name);
}

QString unusedPath(const QString& folder, const QString& fileName)
{
    const auto [stem, suffix] = partsOf(fileName);
    QFileInfo file(QDir(folder), fileName);
    // A link that leads nowhere is in the way, too.
    for (int number = 2; file.exists() || file.isSymLink(); ++number)
        file.setFile(QDir(folder), QStringLiteral("%1 (%2)%3").arg(stem).arg(number).arg(suffix));
    return file.absoluteFilePath();
}

} // namespace tarnwick
