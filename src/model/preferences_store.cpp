// SPDX-License-Identifier: MIT
#include "model/preferences_store.h"

#include "model/diagnostics.h"
#include "platform/durable_file.h"

#include <QDateTime>
#include <QFile>
#include <QJsonDocument>
#include <QMutexLocker>
#include <QStandardPaths>

namespace tarnwick {

namespace {

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

bool PreferencesStore::boolForKey(const QString& key) const
{
    const QMutexLocker lock(&m_valuesMutex);
    return m_values.value(key).toBool(false);
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
    QFile file(m_filePath);
    if (!file.exists())
        return;
    if (file.open(QIODevice::ReadOnly)) {
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
        if (document.isObject()) {
            m_values = document.object();
            return;
        }
        file.close();
    }
    m_isWritable = setAside(m_filePath);
    writeDiagnosticLine(m_filePath +
                        (m_isWritable
                             ? QStringLiteral(" is no preferences file and was set aside")
                             : QStringLiteral(" is no preferences file and is left alone; nothing "
                                              "will be remembered")));
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
