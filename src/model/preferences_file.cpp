// SPDX-License-Identifier: MIT
#include "model/preferences_file.h"

#include "model/diagnostics.h"
#include "platform/changed_values.h"
#include "platform/durable_file.h"
#include "platform/regular_file.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QStandardPaths>

#include <utility>

namespace tarnwick {

namespace {

constexpr qint64 maxFileSize = qint64{16} * 1024 * 1024;

bool isThere(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
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
    const WriterLock lock(m_path);
    if (!isThere(m_path))
        return {};
    const FileContent file = readRegularFile(m_path, maxFileSize);
    m_bytes = file.bytes.value_or(QByteArray());
    const QJsonDocument document = QJsonDocument::fromJson(m_bytes);
    m_values = document.object();
    if (document.isObject())
        return m_values;
    m_isWritable = file.bytes && setAside(m_path);
    const QString problem = file.bytes
                                ? QStringLiteral(" is no preferences file and ")
                                : QStringLiteral(" cannot be read (%1) and ").arg(file.error);
    writeDiagnosticLine(m_path + problem +
                        (m_isWritable
                             ? QStringLiteral("was set aside")
                             : QStringLiteral("is left alone; nothing will be remembered")));
    return {};
}

bool PreferencesFile::save(QJsonObject& values)
{
    if (!m_isWritable)
        return true;
    const WriterLock lock(m_path);
    QJsonObject merged = values;
    auto error = merge(merged);
    const QByteArray bytes = QJsonDocument(merged).toJson();
    if (!error)
        error = replaceFileDurably(m_path, bytes);
    const QString before = std::exchange(m_error, error.value_or(QString()));
    if (error) {
        if (m_error != before)
            writeDiagnosticLine(
                QStringLiteral("Preferences could not be written to %1: %2").arg(m_path, m_error));
        return false;
    }
    if (!before.isEmpty())
        writeDiagnosticLine(QStringLiteral("Preferences were written to ") + m_path);
    m_bytes = bytes;
    m_values = values = merged;
    return true;
}

/// Puts what has changed here into what the file holds by now; nothing, or why that cannot be.
std::optional<QString> PreferencesFile::merge(QJsonObject& values) const
{
    if (!isThere(m_path))
        return {};
    const FileContent file = readRegularFile(m_path, maxFileSize);
    if (!file.bytes)
        return file.error;
    if (*file.bytes == m_bytes)
        return {};
    const QJsonDocument document = QJsonDocument::fromJson(*file.bytes);
    if (!document.isObject())
        return setAside(m_path) ? std::nullopt
                                : std::optional(QStringLiteral("no preferences file"));
    const QJsonObject changed = changedValues(m_values, values);
    values = document.object();
    for (auto value = changed.begin(); value != changed.end(); ++value)
        values.insert(value.key(), value.value());
    return {};
}

} // namespace tarnwick
