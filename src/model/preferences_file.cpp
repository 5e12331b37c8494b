// SPDX-License-Identifier: MIT
#include "model/preferences_file.h"

#include "model/diagnostics.h"
#include "platform/durable_file.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QStandardPaths>

#include <optional>

namespace tarnwick {

namespace {

constexpr qint64 maxFileSize = 16 * 1024 * 1024;

std::optional<QByteArray> readFile(const QFileInfo& info)
{
    // Opening a pipe would block, and a device may never end.
    QFile file(info.filePath());
    if (!info.isFile() || info.size() > maxFileSize || !file.open(QIODevice::ReadOnly))
        return {};
    QByteArray bytes = file.read(maxFileSize);
    return file.error() == QFile::NoError ? std::optional(std::move(bytes)) : std::nullopt;
}

/// Moves a file out of the way under a name that nothing else has.
bool setAside(const QString& filePath)
{
    const QString stem = filePath + QStringLiteral(".unreadable-") +
                         QDateTime::currentDateTimeUtc().toString(u"yyyyMMdd-HHmmss");
    // QFile::rename never replaces an existing file.
    QString name = stem;
    for (int attempt = 2; QFile::exists(name); ++attempt)
        name = stem + u'-' + QString::number(attempt);
    return QFile::rename(filePath, name);
}

} // namespace

QString PreferencesFile::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/tarnwick/preferences.json");
}

QJsonObject PreferencesFile::load()
{
    const QFileInfo info(m_path);
    if (!info.exists() && !info.isSymLink())
        return {};
    const auto bytes = readFile(info);
    const QJsonDocument document = QJsonDocument::fromJson(bytes.value_or(QByteArray()));
    if (document.isObject())
        return document.object();
    m_isWritable = bytes && setAside(m_path);
    const QString problem = bytes ? QStringLiteral(" is no preferences file and ")
                                  : QStringLiteral(" cannot be read and ");
    writeDiagnosticLine(m_path + problem +
                        (m_isWritable
                             ? QStringLiteral("was set aside")
                             : QStringLiteral("is left alone; nothing will be remembered")));
    return {};
}

bool PreferencesFile::save(const QJsonObject& values)
{
    if (!m_isWritable || replaceFileDurably(m_path, QJsonDocument(values).toJson()))
        return true;
    writeDiagnosticLine(QStringLiteral("Preferences could not be written to ") + m_path);
    return false;
}

} // namespace tarnwick
