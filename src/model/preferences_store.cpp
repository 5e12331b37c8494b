// SPDX-License-Identifier: MIT
#include "model/preferences_store.h"

#include "model/diagnostics.h"
#include "platform/durable_file.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QMutexLocker>
#include <QStandardPaths>

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

PreferencesStore::PreferencesStore(QString filePath, QObject* parent)
    : QObject(parent)
    , m_filePath(std::move(filePath))
{
    load();
}

PreferencesStore::~PreferencesStore()
{
    synchronize();
}

QString PreferencesStore::defaultFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/tarnwick/preferences.json");
}

bool PreferencesStore::boolForKey(const QString& key, bool fallback) const
{
    const QMutexLocker lock(&m_valuesMutex);
    return m_values.value(key).toBool(fallback);
}

void PreferencesStore::setBool(bool value, const QString& key)
{
    write(key, value);
}

std::optional<QString> PreferencesStore::stringForKey(const QString& key) const
{
    const QMutexLocker lock(&m_valuesMutex);
    const QJsonValue value = m_values.value(key);
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

void PreferencesStore::setObject(const QString& value, const QString& key)
{
    write(key, value);
}

QVariantMap PreferencesStore::dictionaryRepresentation() const
{
    const QMutexLocker lock(&m_valuesMutex);
    return m_values.toVariantMap();
}

void PreferencesStore::synchronize()
{
    const QMutexLocker fileLock(&m_fileMutex);
    QJsonObject values;
    {
        const QMutexLocker lock(&m_valuesMutex);
        m_isSaveScheduled = false;
        if (!m_hasUnsavedWrites || !m_isWritable)
            return;
        m_hasUnsavedWrites = false;
        values = m_values;
    }
    if (replaceFileDurably(m_filePath, QJsonDocument(values).toJson()))
        return;
    writeDiagnosticLine(QStringLiteral("Preferences could not be written to ") + m_filePath);
    const QMutexLocker lock(&m_valuesMutex);
    m_hasUnsavedWrites = true;
}

void PreferencesStore::load()
{
    const QFileInfo info(m_filePath);
    if (!info.exists() && !info.isSymLink())
        return;
    const auto bytes = readFile(info);
    const QJsonDocument document = QJsonDocument::fromJson(bytes.value_or(QByteArray()));
    if (document.isObject()) {
        m_values = document.object();
        return;
    }
    m_isWritable = bytes && setAside(m_filePath);
    const QString problem = bytes ? QStringLiteral(" is no preferences file and ")
                                  : QStringLiteral(" cannot be read and ");
    writeDiagnosticLine(m_filePath + problem +
                        (m_isWritable
                             ? QStringLiteral("was set aside")
                             : QStringLiteral("is left alone; nothing will be remembered")));
}

void PreferencesStore::write(const QString& key, const QJsonValue& value)
{
    bool wasSaveScheduled = false;
    {
        const QMutexLocker lock(&m_valuesMutex);
        m_values.insert(key, value);
        m_hasUnsavedWrites = true;
        wasSaveScheduled = std::exchange(m_isSaveScheduled, true);
    }
    if (!wasSaveScheduled)
        QMetaObject::invokeMethod(this, &PreferencesStore::synchronize, Qt::QueuedConnection);
    Q_EMIT valueWritten(key);
}

} // namespace tarnwick
