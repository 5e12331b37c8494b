// SPDX-License-Identifier: MIT
#include "shell/updates/partial_file.h"

#include "model/bundle_info.h"
#include "shell/updates/signature.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace tarnwick {

using namespace Qt::StringLiterals;

namespace {

/// Leaves room for a number within the 255 bytes that file systems allow.
constexpr qsizetype maxNameBytes = 200;
constexpr qsizetype maxSuffixLength = 20;

struct NameParts
{
    QString stem;
    /// Including the dot.
    QString suffix;
};

/// ".tar.gz", ".tar.xz" etc. are one suffix.
NameParts partsOf(const QString& name)
{
    qsizetype dot = name.lastIndexOf(u'.');
    if (dot > 4 && QStringView(name).left(dot).endsWith(u".tar"))
        dot -= 4;
    if (dot <= 0 || name.size() - dot > maxSuffixLength)
        return {name, {}};
    return {name.left(dot), name.mid(dot)};
}

QString shortened(const QString& name)
{
    const auto [stem, suffix] = partsOf(name);
    const QByteArray bytes = stem.toUtf8();
    qsizetype size = maxNameBytes - suffix.toUtf8().size();
    if (bytes.size() <= size)
        return name;
    // Not within the bytes of one character.
    while ((bytes[size] & 0xc0) == 0x80)
        --size;
    return QString::fromUtf8(bytes.left(size)) + suffix;
}

} // namespace

QString safeFileName(const QUrl& url)
{
    QString name = url.path(QUrl::FullyDecoded);
    name.replace(u'\\', u'/');
    name = printableText(name.section(u'/', -1));
    name.removeIf([](QChar character) { return u":*?\"<>|"_s.contains(character); });
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
    // A dangling symbolic link does not "exist".
    for (int number = 2; file.exists() || file.isSymLink(); ++number)
        file.setFile(QDir(folder), u"%1 (%2)%3"_s.arg(stem, QString::number(number), suffix));
    return file.absoluteFilePath();
}

PartialFile::PartialFile(const QString& folder)
    : m_folder(folder)
    , m_file(folder + QStringLiteral("/.tarnwick-update-XXXXXX.part"))
{}

bool PartialFile::open()
{
    m_isFolderMissing = !QDir().mkpath(m_folder);
    return !m_isFolderMissing && m_file.open();
}

bool PartialFile::write(const QByteArray& bytes)
{
    // On a full disk a write is short; only the next one reports the error.
    for (qint64 written = 0; written < bytes.size();) {
        const qint64 count = m_file.write(bytes.constData() + written, bytes.size() - written);
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

bool PartialFile::flush()
{
    return m_file.flush();
}

bool PartialFile::isSignedBy(const QByteArray& publicKey, const QByteArray& signature)
{
    const qint64 length = m_file.size();
    uchar* const bytes = m_file.map(0, length, QFileDevice::MapPrivateOption);
    if (!bytes)
        return false;
    const bool isSigned = tarnwick::isSignedBy(publicKey, signature, bytes, length);
    m_file.unmap(bytes);
    return isSigned;
}

QString PartialFile::saveAs(const QString& fileName)
{
    QString path = unusedPath(m_folder, fileName);
    if (!m_file.rename(path))
        return {};
    m_file.setAutoRemove(false);
    m_file.close();
    return path;
}

QString PartialFile::errorString() const
{
    if (m_isFolderMissing)
        return QCoreApplication::translate("PartialFile", "The folder does not exist.");
    return m_file.errorString();
}

} // namespace tarnwick
