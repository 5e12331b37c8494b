// SPDX-License-Identifier: MIT
#include "model/preferences_store.h"

#include "model/preferences_file.h"

#include <QMutexLocker>

namespace tarnwick {

PreferencesStore::PreferencesStore(std::unique_ptr<PreferencesStorage> storage, QObject* parent)
    : QObject(parent)
    , m_storage(std::move(storage))
    , m_values(m_storage->load())
{}

PreferencesStore::PreferencesStore(QString filePath, QObject* parent)
    : PreferencesStore(std::make_unique<PreferencesFile>(std::move(filePath)), parent)
{}

PreferencesStore::~PreferencesStore()
{
    synchronize();
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
    const QMutexLocker storageLock(&m_storageMutex);
    QJsonObject values;
    {
        const QMutexLocker lock(&m_valuesMutex);
        m_isSaveScheduled = false;
        if (!m_hasUnsavedWrites)
            return;
        m_hasUnsavedWrites = false;
        values = m_values;
    }
    if (m_storage->save(values))
        return;
    const QMutexLocker lock(&m_valuesMutex);
    m_hasUnsavedWrites = true;
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
